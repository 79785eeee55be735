#include "jobs/screens/gear_grid.h"

#include "core/format.h"
#include "core/widgets/grid.h"
#include "core/widgets/screen_routines.h"
#include "gear/components.h"
#include "gear/models.h"
#include "jobs/job_components.h"

using namespace Qt::StringLiterals;

void SetUpGearGrid(Grid& grid) {
  grid.SetColumns({{.heading = QString(), .width = 0, .sort = GridSort::Number, .name = u"Type"_s},
                   {.heading = u"Component"_s, .width = FromTwips(1900)},
                   {.heading = u"Name"_s, .width = FromTwips(1500)},
                   {.heading = u"Serial Number"_s, .width = FromTwips(1500)},
                   {.heading = u"Date of mfg"_s, .width = FromTwips(1500), .sort = GridSort::Date},
                   {.heading = QString(), .width = 0, .name = u"ID"_s}});
  grid.SetSortable(false);
  grid.SetSelectsRows(true);
  grid.SetStretchColumn(kGearDescription);
  grid.SetMemory(u"job-gear"_s);
}

void FillGearGrid(Grid& grid, int jobID, int rigID) {
  std::vector<GridRow> rows;
  for (const GearPlace& place : LoadJobGear(jobID, rigID)) {
    const int id = place.componentID;
    const Date dom = id == 0 ? Date() : ComponentDom(id);
    rows.push_back({{QString::number(place.componentType), ComponentTypeName(place.componentType),
                     id == 0 ? QString() : ComponentDescription(id), id == 0 ? QString() : ComponentSerial(id),
                     dom.IsNone() ? QString() : Format(dom, u"mm/dd/yyyy"_s), QString::number(id)},
                    id});
  }
  grid.Refill(std::move(rows));
}
