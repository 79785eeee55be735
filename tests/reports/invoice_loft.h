#pragma once
#include "core/date.h"
#include "core/money.h"
#include "support/data_folder_here.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

/// A loft that writes invoices: its folder is the data folder, and a script answers its boxes.
class InvoiceLoft {
 public:
  struct Whole {
    int job = 0;
    int rig = 0;
  };

  ScriptedPrompts& Prompts() { return prompts_; }
  const TempFolder& Folder() const { return loft_.Folder(); }
  QStringList Rows(const QString& sql) const { return loft_.Rows(sql); }
  void Run(const QString& statement) const { loft_.Run(statement); }
  void ChangeSchema(const QByteArray& sql) const { loft_.ChangeSchema(sql); }

  void HaveAddress(const QByteArray& lines = "Sky Loft\r\n1 Airport Road\r\nSpringfield, OH\r\n") const {
    Folder().Write(QStringLiteral("support/address.txt"), lines);
  }
  void ExpectNoAddress() {
    prompts_.ExpectBox(QStringLiteral("No business address"),
                       QStringLiteral("You haven't entered a business address yet.\n"
                                      "You can do this from the main screen.\n(See the SETUP menu)"));
  }
  /// The mail's file, its line ends those of the text.
  QString Html() const {
    return QString::fromUtf8(Folder().Read(QStringLiteral("support/HTMLinvoice.txt"))).remove(u'\r');
  }
  bool HasHtml() const { return Folder().Has(QStringLiteral("support/HTMLinvoice.txt")); }

  int Person(const QString& first, const QString& last, const QString& address2 = {}) const {
    return Add("tblPeople", {{"firstname", first},
                             {"lastname", last},
                             {"address1", "12 Elm Street"},
                             {"address2", address2},
                             {"city", "Dayton"},
                             {"state", "OH"},
                             {"zip", "45402"},
                             {"phonehome", "555-0123"}});
  }
  int Model(const QString& name, int type, int serviceLife = 0) const {
    return Add("tblModels", {{"Name", name}, {"TypeID", type}, {"ServiceLife", serviceLife}});
  }
  int RigTypeOf(const QList<int>& types, const QString& name = QStringLiteral("Sport rig")) const {
    const int id = Add("tblRigTypes", {{"Name", name}});
    for (const int type : types) Add("tblRigTypeComponents", {{"RigTypeID", id}, {"ComponentTypeID", type}});
    return id;
  }
  int Rig(const QString& alias, int type) const {
    return Add("tblRig", {{"rigAlias", alias}, {"TypeID", type}, {"OwnerID", 1}});
  }
  int Component(int rig, int type, int model, const QString& serial, const QString& subType, Date dom = {}) const {
    return Add("tblComponents", {{"RigID", rig},
                                 {"TypeID", type},
                                 {"ModelID", model},
                                 {"SerialNumber", serial},
                                 {"SubType", subType},
                                 {"DOM", dom}});
  }
  int Job(int customer, int rig, const QString& title = QStringLiteral("Spring service"),
          Date started = Date::FromParts(2026, 3, 9)) const {
    return Add("tblJobs", {{"JobTitle", title},
                           {"CustomerID", customer},
                           {"SystemID", rig},
                           {"InvoiceNumber", ""},
                           {"DateStarted", started}});
  }
  int Task(int job, const QString& name, Money price, int part = 0, bool event = false) const {
    return Add("tblTasks",
               {{"JobID", job}, {"TaskName", name}, {"FlatRate", price}, {"PartID", part}, {"IsEvent", event}});
  }
  int Task(int job, const QString& name, qint64 price, int part = 0, bool event = false) const {
    return Task(job, name, Money::Whole(price), part, event);
  }
  void Due(int rig, int task, int taskLib, Date due) const {
    Add("tblSchedules", {{"rigID", rig}, {"TaskID", task}, {"TaskLibID", taskLib}, {"DateDue", due}});
  }

  /// A job with a line of each kind, for a rig with a place that is empty.
  Whole WholeJob() const {
    HaveAddress();
    const int customer = Person(QStringLiteral("Ann"), QStringLiteral("Jones"), QStringLiteral("Apartment 4"));
    const int rig = Rig(QStringLiteral("Blue"), RigTypeOf({1, 3, 2, 4}));
    Component(rig, 1, Model(QStringLiteral("Javelin"), 1), QStringLiteral("J-1001"), QStringLiteral("J3K"),
              Date::FromParts(2019, 5, 1));
    Component(rig, 3, Model(QStringLiteral("Optimum 143"), 3, 240), QStringLiteral("OP-77"), QString(),
              Date::FromParts(2018, 2, 28));
    Component(rig, 4, Model(QStringLiteral("Cypres 2"), 4, 186), QStringLiteral("C2-9"), QStringLiteral("Expert"),
              Date::FromParts(2020, 1, 15));
    const int job = Job(customer, rig);
    const int repack = Task(job, QStringLiteral("Inspect and repack reserve"), 70);
    Task(job, QStringLiteral("Closing loop"), 5, 12);
    Task(job, QStringLiteral("Reserve ride"), 0, 0, true);
    Task(job, QStringLiteral("Replace all lines of the main canopy, very tidy"), 1250);
    Due(rig, repack, 1, Date::FromParts(2026, 9, 5));
    Due(rig, 0, 2, Date::FromParts(2027, 3, 9));
    return {job, rig};
  }

 private:
  int Add(const char* table, const std::vector<std::pair<const char*, Value>>& fields) const {
    std::vector<std::pair<QString, Value>> named;
    for (const auto& [name, value] : fields) named.emplace_back(QString::fromLatin1(name), value);
    return loft_.Add(QString::fromLatin1(table), named);
  }

  ScriptedPrompts prompts_;
  ThrowAwayLoft loft_;
  DataFolderHere here_{loft_.Folder()};
};
