#include "sample/sample_history.h"

#include "core/default_rows.h"
#include "core/failure.h"
#include "core/format.h"
#include "history/history_entries.h"
#include "jobs/line_edits.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEvery = 6;  ///< rigs, one of which was packed elsewhere

}  // namespace

void AddSampleHistory(const QList<SampleRig>& rigs) {
  static const QStringList comments = {u"Packed by the owner's former loft; data card copied."_s,
                                       u"From the data card that came with the rig."_s, QString()};
  int added = 0;
  for (qsizetype i = 1; i < rigs.size(); i += kEvery) {
    const Date packed = rigs[i].nextRepack - rigs[i].days;
    if (!AddHistoryEntry(HistoryViewOfRig(rigs[i].id), RepackTaskLibID, Format(packed, u"m/d/yyyy"_s)))
      throw Failure(u"The sample loft can't enter the history of rig %1"_s.arg(rigs[i].id));
    const QList<HistoryLine> lines = LoadHx3(rigs[i].id, {.types = {kContainer}});
    const QString& comment = comments[added++ % comments.size()];
    if (!comment.isEmpty()) SetLineComments(lines.constLast().taskID, comment);
  }
}
