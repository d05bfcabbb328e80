#include "app/session.h"

namespace verandis {

Session session;

void SetActiveRuns() {
    session.CaseMarks = {};
    session.MarkedCount = 0;
    for (std::size_t shape = 1; shape <= kShapeCount; ++shape) {
        for (std::size_t number = 1; number <= kCasesPerShape; ++number) {
            if (!session.ChkCase[shape][number]) continue;
            session.CaseMarks[shape][number] = 1;
            ++session.MarkedCount;
        }
    }
}

}  // namespace verandis
