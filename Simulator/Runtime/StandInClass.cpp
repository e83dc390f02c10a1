// Sorts the rows of all stand-ins by superclass.
#include "Simulator/Runtime/StandInClass.hpp"

#include "Simulator/Base/Phone.hpp"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

namespace Simulator {

// Set before any constructor runs, so that it does not matter which source's rows are made first.
static constinit const StandInRow* lastRow = nullptr;

StandInRow::StandInRow(const char* name, const char* superclass, Add add, Condition condition)
    : name_(name)
    , superclass_(superclass)
    , add_(add)
    , condition_(condition)
    , next_(std::exchange(lastRow, this))
{
}

class StandInRows {
public:
    void add()
    {
        for (const StandInRow* row = lastRow; row; row = row->next_)
            rows_.push_back(row);
        // By name, since the linker decides in which order they come.
        std::ranges::sort(rows_, {}, [](const StandInRow* row) { return std::string_view(row->name_); });
        std::ranges::stable_partition(rows_, [](const StandInRow* row) { return !row->superclass_; });
        for (const StandInRow* row : rows_)
            add(row);
    }

private:
    void add(const StandInRow* row)
    {
        static std::set<const StandInRow*> added;
        if ((row->condition_ && !row->condition_()) || !added.insert(row).second)
            return;
        if (row->superclass_) {
            const auto isSuperclass
                = [row](const StandInRow* other) { return std::string_view(other->name_) == row->superclass_; };
            const auto superclass = std::ranges::find_if(rows_, isSuperclass);
            if (superclass != rows_.end())
                add(*superclass);
        }
        row->add_(row->name_, row->superclass_);
    }

    std::vector<const StandInRow*> rows_;
};

static const Phone::AtStart registersClasses([](Phone& phone) {
    ObjC::AutoreleasePool pool;
    StandInRows().add();
    phone.setScope([]() -> std::shared_ptr<void> { return std::make_shared<ObjC::AutoreleasePool>(); });
});

}
