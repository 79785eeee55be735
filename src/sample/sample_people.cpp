#include "sample/sample_people.h"

using namespace Qt::StringLiterals;

namespace {

struct Town {
  QStringView city;
  QStringView state;
  QStringView zip;
};

constexpr Town kTowns[] = {
    {u"Fairhaven", u"CA", u"92599"}, {u"Millbrook", u"CA", u"95999"},   {u"Cedar Flats", u"AZ", u"85699"},
    {u"Lakeview", u"NV", u"89099"},  {u"Stone Ridge", u"CA", u"93599"},
};

struct Name {
  QStringView last;
  QStringView first;
  QStringView organization = {};
};

constexpr Name kNames[] = {
    {u"Hale", u"Rita"},
    {u"Okafor", u"Daniel"},
    {u"Abbott", u"Grace"},
    {u"Álvarez", u"Lucía"},
    {u"Ångström", u"Nils"},
    {u"Baker", u"Tom"},
    {u"Bauer", u"Katrin"},
    {u"Becker", u"Jonas"},
    {u"Bennett", u"Claire"},
    {u"Brandt", u"Erik"},
    {u"Carter", u"Malik"},
    {u"Chen", u"Wei"},
    {u"Cooper", u"Hannah"},
    {u"D'Angelo", u"Marco"},
    {u"Dubois", u"Élodie"},
    {u"Edwards", u"Owen"},
    {u"Fischer", u"Lena"},
    {u"Foster", u"Ray"},
    {u"Garcia", u"Sofia"},
    {u"Grant", u"Peter"},
    {u"Hansen", u"Ingrid"},
    {u"Hughes", u"Megan"},
    {u"Ito", u"Haruka"},
    {u"Jensen", u"Søren"},
    {u"Kim", u"Ji-woo"},
    {u"Larsen", u"Mads"},
    {u"Lopez", u"Andrés"},
    {u"MacLeod", u"Fiona"},
    {u"Miller", u"Jack"},
    {u"Moreau", u"Zoë"},
    {u"Nguyen", u"Linh"},
    {u"Novák", u"Petr"},
    {u"O'Brien", u"Ann"},
    {u"Patel", u"Priya"},
    {u"Quinn", u"Liam"},
    {u"Rossi", u"Chiara"},
    {u"Schäfer", u"Uwe"},
    {u"Taylor", u"Beth"},
    {u"van der Berg", u"Anke"},
    {u"Young", u"Marcus"},
    {u"", u"", u"Fairhaven Skydiving Center"},
    {u"", u"", u"Stone Ridge Soaring Club"},
};

QString Phone(int number) { return u"555-01%1"_s.arg(number % 100, 2, 10, QChar(u'0')); }

}  // namespace

QList<Person> SamplePeople() {
  QList<Person> people;
  for (const Name& name : kNames) {
    const int number = static_cast<int>(people.size());
    const Town& town = kTowns[static_cast<size_t>(number * 7) % std::size(kTowns)];
    Person person{
        .organization = name.organization.toString(),
        .lastName = name.last.toString(),
        .firstName = name.first.toString(),
        .address1 = u"%1 %2"_s.arg(11 + 17 * number).arg(number % 2 == 0 ? u"Airport Road"_s : u"Hangar Lane"_s),
        .city = town.city.toString(),
        .state = town.state.toString(),
        .zip = town.zip.toString(),
        .rigger = number < kSampleRiggers};
    (number % 3 == 0 ? person.phoneHome : person.phoneCell) = Phone(number);
    if (number % 4 != 3) person.email1 = u"customer%1@example.com"_s.arg(number);
    people << person;
  }
  people[0].email1 = u"rita@example.com"_s;
  people[5].comment = u"Calls before he drops gear off."_s;
  people[24].comment = u"Wants photos of any damage before work starts."_s;
  return people;
}
