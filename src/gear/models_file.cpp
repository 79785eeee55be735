#include "gear/models_file.h"

#include <QDir>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/long_work.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "core/text.h"
#include "core/text_files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

const QString kStart = u"<mfg>"_s;
const QString kEnd = u"<end mfg>"_s;

const QString kFile = u"models.txt"_s;

QString LocalFile() { return QDir::current().filePath(kFile); }

/// Lines read one by one; behind the end they are empty.
class Reader {
 public:
  Reader(const QStringList& lines, LongWork& work) : lines_(lines), work_(work) {}
  bool AtEnd() const { return at_ >= lines_.size(); }
  QString Next() {
    work_.Step();
    return lines_.value(at_++);
  }
  int NextNumber() { return Value(Val(Next())).ToInt(); }

 private:
  const QStringList& lines_;
  LongWork& work_;
  qsizetype at_ = 0;
};

void ReadManufacturers(Reader& reader) {
  if (reader.Next() != kStart) return;
  while (!reader.AtEnd()) {
    const QString name = reader.Next();
    if (name == kEnd) return;
    AddRow(tblManufacturers::kTable, {{tblManufacturers::ID, reader.NextNumber()}, {tblManufacturers::Name, name}});
  }
}

void ReadModels(Reader& reader) {
  while (!reader.AtEnd()) {
    RowValues model;
    model.Set(tblModels::Name, reader.Next());
    model.Set(tblModels::ManfID, reader.NextNumber());
    model.Set(tblModels::TypeID, reader.NextNumber());
    reader.Next();  // the price of whoever wrote the file is not this shop's
    model.Set(tblModels::Price, Money());
    model.Set(tblModels::ServiceLife, 0);
    AddRow(tblModels::kTable, model);
  }
}

bool HasModels() { return GetNumberRecordsInTable(tblModels::kTable) > 0; }

}  // namespace

bool IsModelsFile(const QStringList& lines) { return lines.contains(kStart) && lines.contains(kEnd); }

void ExportModels() {
  if (!AskYes(u"ready to export to file?"_s, kProgramTitle)) return;
  const bool written = Operation(u"Sub ExportModels"_s, [] {
    QStringList lines(kStart);
    const auto add = [&lines](const Table& table, const std::vector<Column>& columns) {
      for (const Recordset& row : Rows(table))
        for (const Column& column : columns) lines << row[column].ToText();
    };
    add(tblManufacturers::kTable, {tblManufacturers::Name, tblManufacturers::ID});
    lines << kEnd;
    add(tblModels::kTable, {tblModels::Name, tblModels::ManfID, tblModels::TypeID, tblModels::Price});
    WriteLines(LocalFile(), lines);
  });
  if (written) MsgBox(u"models.txt created in local directory"_s);
}

void ImportModels(bool silent) {
  if (HasModels()) {
    MsgBox(u"tblModels isn't empty"_s, u"cancelling"_s);
    return;
  }
  QString file = SupportFile(kFile);
  if (silent && !ExistFile(file)) {
    MsgBox(u"The file 'models.txt' is missing.  Manufacturers and models will not be loaded"_s,
           u"Can't find 'models.txt')"_s);
    return;
  }
  if (!silent) {
    if (!AskYes(u"Import models and manufacturers?"_s, kProgramTitle)) return;
    file = GetModelfileforImport();
    if (file.isEmpty()) return;
  }
  Trap(u"Sub ImportModels"_s, [&] {
    const QStringList lines = ReadLines(file);
    if (!silent) {
      if (!IsModelsFile(lines)) {
        MsgBox(u"that isn't a valid models text file"_s, u"wrong file"_s);
        return;
      }
      if (!AskYes(u"Valid file.  Ready to import?"_s, kProgramTitle)) return;
    }
    const bool written = Operation(u"Sub ImportModels"_s, [&] {
      LongWork work(u"Importing manufacturers and models"_s, lines.size());
      Reader reader(lines, work);
      ReadManufacturers(reader);
      ReadModels(reader);
    });
    if (written && !silent) MsgBox(u"Manufacturers and models updated"_s, u"Done"_s);
  });
}

QString GetModelfileforImport() {
  return OpenFileDialog({u"Find file 'models.txt"_s, kFile, u"all files (*.*)|*.*"_s});
}

void CheckModelsFile() {
  const QString support = SupportFile(kFile);
  const QString source = ProgramFile(kFile);
  if (!ExistFile(support) && !source.isEmpty()) MyFileCopy(source, support);
  if (!HasModels()) ImportModels(true);
}
