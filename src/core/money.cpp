#include "core/money.h"

#include "core/decimal.h"

Money Money::FromDouble(double amount) { return FromUnits(Decimal::FromDouble(amount).ToTenThousandths()); }

Money Money::FromText(const QString& text) { return FromUnits(Decimal::Leading(text).ToTenThousandths()); }
