#include "reports/business_address.h"

#include "core/data_folder.h"
#include "core/files.h"
#include "core/text_files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

QString AddressFile() { return SupportFile(u"address.txt"_s); }

}  // namespace

QString GetBusinessAddress() {
  QString address;
  Trap(u"Function GetBusinessAddress"_s, [&] {
    if (ExistFile(AddressFile())) address = ReadLines(AddressFile()).join(u'\n');
  });
  return address;
}

void WriteAddress(const QString& address) {
  WriteLines(AddressFile(), LinesOf(address));
  StripFile(AddressFile());
}

void SaveAddress(const QString& address) {
  Trap(u"Sub SaveAddress"_s, [&] {
    WriteAddress(address);
    MsgBox(u"Saved"_s, u"Business Address"_s);
  });
}
