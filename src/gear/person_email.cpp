#include "gear/person_email.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "gear/people.h"

using namespace Qt::StringLiterals;

namespace {

QString EnterAddress(int person) {
  return InputBox(u"Enter email address for "_s + PersonDisplayName(person), u"Enter email address"_s);
}

}  // namespace

bool IsLegalEmail(const QString& address) {
  const qsizetype at = address.indexOf(u'@');
  if (!address.contains(u'.') || at < 0) return false;
  const auto isPart = [](const QString& part) { return part != u"@"_s && !part.trimmed().isEmpty(); };
  return isPart(address.left(at)) && isPart(address.mid(at + 1));
}

bool AskForInvoiceEmail(int person) {
  if (!AskYes(Lines({PersonDisplayName(person) + u" doesn't have an email address."_s, QString(),
                     u"Would you like to enter it?"_s}),
              kProgramTitle))
    return false;
  const QString address = EnterAddress(person);
  if (address.isEmpty()) return false;
  if (!IsLegalEmail(address)) {
    MsgBox(address + u" is not a legal email address"_s, u"Bad email address"_s, Icon::Exclamation);
    return false;
  }
  UpdateTableBySQL(u"Update [tblPeople] set [email1] = '"_s + address + u"' where [id] = "_s + QString::number(person));
  return PersonEmail(person) == address;  // an apostrophe breaks the statement, which has been told
}

bool AskForStatementEmail(int person) {
  if (!AskYes(Lines({PersonDisplayName(person) + u" doesn't have an email address."_s, QString(),
                     u"Would you like to enter one now?"_s}),
              u"Enter email address?"_s))
    return false;
  const QString address = EnterAddress(person);
  if (address.isEmpty()) return false;
  if (!IsLegalEmail(address)) {
    MsgBox(address + u" is not a valid email address"_s);
    return false;
  }
  UpdateTable(tblPeople::email1, address, tblPeople::ID, person);
  return true;
}
