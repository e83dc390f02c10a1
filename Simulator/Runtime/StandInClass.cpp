// Sorts the rows of all stand-ins by superclass.
#include "Simulator/Runtime/StandInClass.hpp"

#include "Simulator/Base/Phone.hpp"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

namespace Simulator {

/// Set before any constructor runs, so that it does not matter which source's rows are made first.
static constinit const StandInRow* lastRow = nullptr;

StandInRow::StandInRow(const char* name, const char* superclass, Add add, Condition condition)
    : m_name(name)
    , m_superclass(superclass)
    , m_add(add)
    , m_condition(condition)
    , m_next(std::exchange(lastRow, this))
{
}

class StandInRows {
public:
    void add()
    {
        for (const StandInRow* row = lastRow; row; row = row->m_next)
            m_rows.push_back(row);
        // By name, since the linker decides in which order they come.
        std::ranges::sort(m_rows, {}, [](const StandInRow* row) { return std::string_view(row->m_name); });
        std::ranges::stable_partition(m_rows, [](const StandInRow* row) { return !row->m_superclass; });
        for (const StandInRow* row : m_rows)
            add(row);
    }

private:
    void add(const StandInRow* row)
    {
        static std::set<const StandInRow*> added;
        if ((row->m_condition && !row->m_condition()) || !added.insert(row).second)
            return;
        if (row->m_superclass) {
            const auto isSuperclass
                = [row](const StandInRow* other) { return std::string_view(other->m_name) == row->m_superclass; };
            const auto superclass = std::ranges::find_if(m_rows, isSuperclass);
            if (superclass != m_rows.end())
                add(*superclass);
        }
        row->m_add(row->m_name, row->m_superclass);
    }

    std::vector<const StandInRow*> m_rows;
};

static const Phone::AtStart registersClasses([](Phone& phone) {
    ObjC::AutoreleasePool pool;
    StandInRows().add();
    phone.setScope([]() -> std::shared_ptr<void> { return std::make_shared<ObjC::AutoreleasePool>(); });
});

}
