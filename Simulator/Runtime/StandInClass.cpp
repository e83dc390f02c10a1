// Sorts the rows of all stand-ins by superclass.
#include "Simulator/Runtime/StandInClass.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Runtime/System.hpp"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

namespace Simulator {

/// Set before any constructor runs, so that it does not matter which source's rows are made first.
static constinit const StandInRow* lastRow = nullptr;

StandInRow::StandInRow(const char* name, const char* superclass, Add add, Condition condition, const char* library)
    : m_name(name)
    , m_superclass(superclass)
    , m_add(add)
    , m_condition(condition)
    , m_library(library)
    , m_next(std::exchange(lastRow, this))
{
}

class StandInRows {
public:
    /// Those that a library brings; those of the system without one.
    explicit StandInRows(std::string_view library = {})
    {
        for (const StandInRow* row = lastRow; row; row = row->m_next) {
            if (library == (row->m_library ? row->m_library : ""))
                m_rows.push_back(row);
        }
    }

    std::vector<std::string_view> names() const
    {
        std::vector<std::string_view> names;
        for (const StandInRow* row : m_rows)
            names.emplace_back(row->m_name);
        return names;
    }

    void add()
    {
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
        if ((row->m_condition && !row->m_condition()) || !System::current().hasClass(row->m_name)
            || !added.insert(row).second)
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

bool bringClassesOf(std::string_view path)
{
    StandInRows rows(path);
    rows.add();
    return !rows.names().empty();
}

std::vector<std::string_view> classesOf(std::string_view path)
{
    return path.empty() ? std::vector<std::string_view>() : StandInRows(path).names();
}

static const Phone::AtStart registersClasses([](Phone& phone) {
    ObjC::AutoreleasePool pool;
    StandInRows().add();
    phone.setScope([]() -> std::shared_ptr<void> { return std::make_shared<ObjC::AutoreleasePool>(); });
});

}
