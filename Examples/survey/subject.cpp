#include "subject.h"

namespace survey {

Subject subjectOf(const Table& table, const Column* grouping)
{
    Subject subject{table, grouping, {}};
    if (grouping != nullptr)
        subject.groups = groupsBy(*grouping);
    subject.groups.push_back(allRows(table));
    return subject;
}

} // namespace survey
