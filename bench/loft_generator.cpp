#include "bench/loft_generator.h"

#include <QFile>

#include <array>
#include <random>
#include <utility>
#include <vector>

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "dbcare/check_fields.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRepackCycle = 180;
constexpr int kAadLife = 150;  // months
const Date kFirstDay = Date::FromParts(2006, 1, 2);
constexpr int kDays = 7300;

struct Gear {
  int id = 0;
  int type = 0;
};

struct Rig {
  int id = 0;
  int owner = 0;
  std::vector<Gear> gear;
  Date lastRepack;
  int lastRepackTask = 0;
};

using FieldValues = std::initializer_list<std::pair<const char16_t*, Value>>;

/// Adds a row; its ID, or 0 in a table without one.
int AddRow(Recordset& table, const FieldValues& values) {
  table.AddNew();
  for (const auto& [field, value] : values) table.Set(QStringView(field), value);
  table.Update();
  for (size_t i = 0; i < table.Fields().size(); ++i)
    if (table.Fields()[i].name == "ID"_L1) return table.At(static_cast<int>(i)).ToInt();
  return 0;
}

class Generator {
 public:
  explicit Generator(const LoftSize& size) : size_(size) {}

  void Run() {
    Bracket bracket;
    CheckAllFields(false);
    CreateDefaultRows();
    UpdateTable(u"tblTaskLib"_s, u"IntervalNumber"_s, kRepackCycle, u"ID"_s, RepackTaskLibID);
    UpdateTable(u"tblTaskLib"_s, u"FlatRate"_s, Money::Whole(75), u"ID"_s, RepackTaskLibID);
    AddModels();
    AddPeople();
    AddRigs();
    AddLooseComponents();
    AddJobs();
    AddSchedules();
    bracket.Close();
  }

 private:
  int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  void AddModels() {
    Recordset models(u"tblModels"_s);
    Recordset makers(u"tblManufacturers"_s);
    for (int maker = 1; maker <= 20; ++maker) AddRow(makers, {{u"ID", maker}, {u"Name", u"Maker %1"_s.arg(maker)}});
    for (int type : {kContainer, kMainCanopy, kReserveCanopy, kAad, kMisc}) {
      for (int i = 1; i <= 40; ++i) {
        const int id = AddRow(models, {{u"ManfID", 1 + Draw(20)},
                                       {u"TypeID", type},
                                       {u"Price", type == kMisc ? Money::Whole(2 + i) : Money()},
                                       {u"Name", u"Model %1-%2"_s.arg(type).arg(i)},
                                       {u"ServiceLife", type == kAad ? kAadLife : 0}});
        models_[static_cast<size_t>(type)].push_back(id);
      }
    }
  }

  void AddPeople() {
    Recordset people(u"tblPeople"_s);
    for (int i = 1; i <= size_.customers; ++i) {
      people_.push_back(AddRow(people, {{u"OrgName", QString()},
                                        {u"lastname", u"Jumper%1"_s.arg((i * 7919) % size_.customers)},
                                        {u"firstname", u"First%1"_s.arg(i % 300)},
                                        {u"phonehome", u"555-%1"_s.arg(i, 4, 10, QChar(u'0'))},
                                        {u"phonecell", QString()},
                                        {u"phoneother", QString()},
                                        {u"email1", QString()},
                                        {u"email2", QString()},
                                        {u"address1", u"%1 Dropzone Road"_s.arg(i)},
                                        {u"address2", QString()},
                                        {u"city", u"Perris"_s},
                                        {u"state", u"CA"_s},
                                        {u"zip", u"92570"_s},
                                        {u"country", QString()},
                                        {u"comment", u" "_s},
                                        {u"rigger", i <= 2},
                                        {u"PhotoName", QString()}}));
    }
    UpdateTableBySQL(u"update tblMisc set UserID = 1, DefaultRiggerID = 1"_s);
  }

  int AddComponent(Recordset& components, int type, int owner, int rig) {
    const auto& models = models_[static_cast<size_t>(type)];
    ++componentsMade_;
    return AddRow(
        components,
        {{u"ModelID", models[static_cast<size_t>(Draw(static_cast<int>(models.size())))]},
         {u"TypeID", type},
         {u"DOM", kFirstDay + Draw(kDays - 400)},
         {u"SubType", type == kMainCanopy || type == kReserveCanopy ? QString::number(90 + Draw(200)) : QString()},
         {u"Comment", u" "_s},
         {u"OwnerID", owner},
         {u"Color", u"black"_s},
         {u"Grounded", false},
         {u"NumJumps", 0},
         {u"SerialNumber", u"SN%1"_s.arg(componentsMade_, 6, 10, QChar(u'0'))},
         {u"RigID", rig},
         {u"Price", Money()},
         {u"PhotoName", QString()}});
  }

  void AddRigs() {
    Recordset rigs(u"tblRig"_s);
    Recordset components(u"tblComponents"_s);
    constexpr int kSportRig = 1;
    for (int i = 1; i <= size_.rigs; ++i) {
      Rig rig;
      rig.owner = people_[static_cast<size_t>(Draw(size_.customers))];
      rig.id = AddRow(
          rigs,
          {{u"OwnerID", rig.owner}, {u"TypeID", kSportRig}, {u"rigAlias", u"Rig %1"_s.arg(i)}, {u"Comment", u" "_s}});
      for (int type : {kContainer, kMainCanopy, kReserveCanopy, kAad})
        rig.gear.push_back({AddComponent(components, type, rig.owner, rig.id), type});
      rigs_.push_back(std::move(rig));
    }
  }

  void AddLooseComponents() {
    Recordset components(u"tblComponents"_s);
    while (componentsMade_ < size_.components)
      AddComponent(components, kMainCanopy, people_[static_cast<size_t>(Draw(size_.customers))], 0);
  }

  int AddLine(Recordset& tasks, const Rig& rig, int job, int rigger, Date day, int taskLib, int part,
              const QString& name, Money price) {
    return AddRow(tasks, {{u"JobID", job},
                          {u"CustomerID", rig.owner},
                          {u"RiggerID", rigger},
                          {u"FlatRate", price},
                          {u"HourlyRate", Money()},
                          {u"Tax", Money()},
                          {u"NumHours", 0},
                          {u"Comments", u" "_s},
                          {u"DateTaskCompleted", day},
                          {u"TaskLibID", taskLib},
                          {u"LogBook", part == 0},
                          {u"Status", -1},
                          {u"DateTaskStarted", day},
                          {u"TaskName", name},
                          {u"SystemID", rig.id},
                          {u"PartID", part},
                          {u"IsEvent", false},
                          {u"LocationID", 0}});
  }

  void AddJobs() {
    Recordset jobs(u"tblJobs"_s);
    Recordset tasks(u"tblTasks"_s);
    Recordset gear(u"tblJobComponents"_s);
    Recordset touched(u"tblTaskComponents"_s);
    int lines = 0;
    for (int i = 0; i < size_.jobs; ++i) {
      Rig& rig = rigs_[static_cast<size_t>(Draw(size_.rigs))];
      const Date day = kFirstDay + static_cast<double>(static_cast<qint64>(i) * kDays / size_.jobs);
      const int rigger = people_[static_cast<size_t>(Draw(2))];
      const int job = AddRow(jobs, {{u"JobTitle", u"Rig %1 job %2"_s.arg(rig.id).arg(i + 1)},
                                    {u"InvoiceNumber", QString::number(i + 1)},
                                    {u"DateBilled", Date()},
                                    {u"DatePaid", Date()},
                                    {u"CustomerID", rig.owner},
                                    {u"JobStatus", -1},
                                    {u"JobPaymentStatus", 0},
                                    {u"Comments", u" "_s},
                                    {u"DateStarted", day},
                                    {u"DatePromised", Date()},
                                    {u"DateCompleted", day},
                                    {u"SystemID", rig.id},
                                    {u"LocationID", 0},
                                    {u"RiggerID", rigger},
                                    {u"ComponentID", 0}});
      for (const Gear& piece : rig.gear) AddRow(gear, {{u"JobID", job}, {u"ComponentID", piece.id}});
      const int repack =
          AddLine(tasks, rig, job, rigger, day, RepackTaskLibID, 0, u"Inspect and repack reserve"_s, Money::Whole(75));
      for (const Gear& piece : rig.gear)
        if (piece.type == kContainer || piece.type == kReserveCanopy)
          AddRow(touched, {{u"TaskID", repack}, {u"CompID", piece.id}, {u"Complete", true}});
      rig.lastRepack = day;
      rig.lastRepackTask = repack;
      ++lines;
      // The rest of a job are parts, spread so that all jobs together have the lines wanted.
      const int wanted = static_cast<int>(static_cast<qint64>(i + 1) * size_.lines / size_.jobs);
      const auto& parts = models_[static_cast<size_t>(kMisc)];
      for (; lines < wanted; ++lines) {
        const size_t which = static_cast<size_t>(Draw(static_cast<int>(parts.size())));
        AddLine(tasks, rig, job, rigger, day, 0, parts[which], u"Part %1"_s.arg(which),
                Money::Whole(3 + static_cast<int>(which)));
      }
    }
    UpdateTableBySQL(u"update tblMisc set LastJobID = "_s + QString::number(size_.jobs));
  }

  void AddSchedules() {
    Recordset rows(u"tblSchedules"_s);
    for (const Rig& rig : rigs_) {
      if (rig.lastRepackTask == 0) continue;
      AddRow(rows, {{u"rigID", rig.id},
                    {u"TaskLibID", RepackTaskLibID},
                    {u"DateDone", rig.lastRepack},
                    {u"DateDue", rig.lastRepack + kRepackCycle},
                    {u"TaskID", rig.lastRepackTask},
                    {u"ComponentID", 0}});
    }
  }

  LoftSize size_;
  std::mt19937 random_{20261121};
  std::array<std::vector<int>, kMisc + 1> models_;
  std::vector<int> people_;
  std::vector<Rig> rigs_;
  int componentsMade_ = 0;
};

}  // namespace

void GenerateLoft(const QString& path, const LoftSize& size) {
  ReleaseDatabaseFile();
  QFile::remove(path);
  Database::CreateFile(path);
  ConnectionString = ConnectionStringFor(path);
  Generator(size).Run();
}

void UseBenchmarkLoft() {
  const QString path = QStringLiteral(BENCH_FOLDER "/benchmark-loft.mdb");
  if (QFile::exists(path))
    ConnectionString = ConnectionStringFor(path);
  else
    GenerateLoft(path, LoftSize());
}
