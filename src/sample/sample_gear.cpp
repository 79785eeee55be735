#include "sample/sample_gear.h"

#include <QHash>

#include "core/default_rows.h"
#include "core/failure.h"
#include "gear/catalogue.h"
#include "gear/component_editor.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/service_lives.h"

using namespace Qt::StringLiterals;

namespace {

/// The rig types that every loft has, by number.
enum : int { kSportRig = 1, kTandemRig = 2, kBackRig = 3, kSeatRig = 4 };

struct Choice {
  int rigType;
  int componentType;
  QStringList models;
  QStringList sizes;
};

const std::vector<Choice>& Choices() {
  static const std::vector<Choice> choices = {
      {kSportRig,
       kContainer,
       {u"Javelin Odyssey"_s, u"Vector III"_s, u"Mirage G4.1"_s, u"Infinity"_s, u"Wings"_s, u"Curv"_s},
       {}},
      {kSportRig,
       kMainCanopy,
       {u"Sabre2"_s, u"Pilot"_s, u"Spectre"_s, u"Safire 3"_s, u"Crossfire 3"_s, u"Stiletto"_s, u"Triathlon"_s},
       {u"107"_s, u"120"_s, u"135"_s, u"150"_s, u"170"_s, u"190"_s, u"210"_s}},
      {kSportRig,
       kReserveCanopy,
       {u"Optimum"_s, u"PD Reserve"_s, u"Smart LPV"_s, u"Icarus Reserve"_s},
       {u"113"_s, u"126"_s, u"143"_s, u"160"_s, u"176"_s}},
      {kSportRig, kAad, {u"Expert CYPRES 2"_s, u"Vigil 2+"_s, u"M2 Multi"_s, u"Vigil Cuatro"_s}, {}},
      {kTandemRig, kContainer, {u"Sigma Tandem"_s, u"Vector Tandem"_s, u"Dual Hawk Tandem"_s}, {}},
      {kTandemRig,
       kMainCanopy,
       {u"Sigma II"_s, u"A2 Tandem"_s, u"Icarus Tandem"_s, u"SET-366"_s},
       {u"330"_s, u"365"_s}},
      {kTandemRig, kReserveCanopy, {u"VR-360"_s, u"Master 425"_s}, {u"360"_s}},
      {kTandemRig, kAad, {u"Tandem CYPRES 2"_s}, {}},
      {kTandemRig, kPassengerHarness, {u"Sigma Passenger Harness"_s, u"Dual Hawk Passenger Harness"_s}, {}},
      {kBackRig, kContainer, {u"Long Softie"_s, u"Mini Softie"_s, u"Butler Backpack"_s, u"Para-Cushion Back"_s}, {}},
      {kBackRig, kReserveCanopy, {u"26 ft Lo-Po"_s, u"26 ft Navy Conical"_s, u"Phantom 24"_s}, {}},
      {kSeatRig, kContainer, {u"Softie Seat"_s, u"Para-Cushion Seat"_s, u"National 425"_s}, {}},
      {kSeatRig, kReserveCanopy, {u"26 ft Mid-Lite"_s, u"28 ft C-9"_s}, {}},
  };
  return choices;
}

const QStringList kColors = {u"black / red"_s,   u"navy"_s,  u"white / teal"_s,
                             u"orange / grey"_s, u"black"_s, u"purple"_s};

/// Months that a model serves, as its maker states them; none for those that serve on condition.
int ServiceMonths(const QString& model) {
  static const QHash<QString, int> months = {{u"Expert CYPRES 2"_s, 150}, {u"Tandem CYPRES 2"_s, 150},
                                             {u"M2 Multi"_s, 180},        {u"Vigil 2+"_s, 240},
                                             {u"Vigil Cuatro"_s, 240},    {u"Long Softie"_s, 240}};
  return months.value(model);
}

class Gear {
 public:
  Gear(Date start, std::mt19937& random) : start_(start), random_(random) {}

  SampleRig AddRig(int owner, int type, const QString& name) {
    SampleRig rig{.id = CreateRig(owner, type, name), .owner = owner, .type = type};
    const Date made = start_ - (200 + Draw(4500));
    for (int componentType : ComponentTypesOfRigType(type)) AddComponent(rig.owner, rig.id, type, componentType, made);
    return rig;
  }

  /// A piece of gear of this kind of rig; in no rig when `rig` is 0.
  int AddComponent(int owner, int rig, int rigType, int type, Date made, const QString& comment = {}) {
    const Choice& choice = ChoiceOf(rigType, type);
    const QString model = Pick(choice.models);
    const QString size = choice.sizes.isEmpty() ? QString() : Pick(choice.sizes);
    ComponentEntry entry{.model = ModelId(model, type),
                         .type = type,
                         .owner = owner,
                         .rig = rig,
                         .subType = size,
                         .serial = u"%1%2-%3"_s.arg(model.left(1)).arg(size, QString::number(1001 + 37 * ++serials_)),
                         .color = type == kAad ? QString() : Pick(kColors),
                         .comment = comment,
                         .dom = made + Draw(120),
                         .jumps = type == kMainCanopy ? 40 + Draw(1200) : 0};
    return SaveComponentEntry(entry);
  }

  int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  const QString& Pick(const QStringList& texts) { return texts[Draw(static_cast<int>(texts.size()))]; }

 private:
  static const Choice& ChoiceOf(int rigType, int type) {
    for (const Choice& choice : Choices())
      if (choice.rigType == rigType && choice.componentType == type) return choice;
    throw Failure(u"The sample loft has no gear of type %1 for rig type %2"_s.arg(type).arg(rigType));
  }

  int ModelId(const QString& name, int type) {
    const int id = FindModelByName(name, type);
    if (id == 0) throw Failure(u"The sample loft lacks the model "_s + name);
    if (ServiceMonths(name) > 0) SaveServiceLife(id, ServiceMonths(name));
    return id;
  }

  Date start_;
  std::mt19937& random_;
  int serials_ = 0;
};

QString RigNameOf(int number) {
  static const QStringList names = {u"Everyday rig"_s, u"Backup rig"_s, u"Wingsuit rig"_s, u"Camera rig"_s};
  return names[number % names.size()];
}

}  // namespace

QList<SampleRig> AddSampleGear(const QList<int>& people, Date start, std::mt19937& random) {
  Gear gear(start, random);
  QList<SampleRig> rigs;
  const qsizetype center = people.size() - 2;  // the drop zone and the gliding club stand last
  for (qsizetype i = 0; i < center; ++i) {
    const int owned = i % 5 == 4 ? 2 : i % 11 == 10 ? 0 : 1;
    for (int n = 0; n < owned; ++n) rigs << gear.AddRig(people[i], kSportRig, RigNameOf(static_cast<int>(i) + n));
  }
  for (int n = 1; n <= 6; ++n) rigs << gear.AddRig(people[center], kTandemRig, u"Tandem %1"_s.arg(n));
  for (int n = 1; n <= 5; ++n) rigs << gear.AddRig(people[center + 1], kBackRig, u"Glider %1"_s.arg(n));
  for (int n = 1; n <= 4; ++n) rigs << gear.AddRig(people[center + 1], kSeatRig, u"Towplane seat %1"_s.arg(n));
  for (SampleRig& rig : rigs) {
    rig.days = rig.type == kTandemRig ? 120 + gear.Draw(50) : 150 + gear.Draw(120);
    rig.nextRepack = start + gear.Draw(rig.days);
  }
  const QString grounded = u"Grounded: its fabric failed the pull test."_s;
  for (int i = 0; i < 9; ++i) {
    const bool reserve = i % 3 == 2;
    gear.AddComponent(people[3 + 4 * i], 0, kSportRig, reserve ? kReserveCanopy : kMainCanopy, start - 900 - 200 * i,
                      reserve ? grounded : QString());
  }
  return rigs;
}
