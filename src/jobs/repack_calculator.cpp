#include "jobs/repack_calculator.h"

#include "core/clock.h"

using namespace Qt::StringLiterals;

QString ExpirationText(Date end) {
  const int days = DaysBetween(Today(), end);
  if (days < 0) return u"Expired "_s + QString::number(-days) + u" days ago"_s;
  if (days == 0) return u"Expires today"_s;
  if (days == 1) return u"Expires tomorrow"_s;
  return u"Expires in "_s + QString::number(days) + u" days from today's date"_s;
}
