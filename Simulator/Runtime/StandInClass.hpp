// The row by which a stand-in class is known. It stands in the class's own source, beside what it names:
//
//     static const StandInClass uiWindow("UIWindow", "UIView", [](Binder<UIWindow>& binder) {
//         binder.init<"init", &UIWindow::init>()
//             .def<"makeKeyAndVisible", &UIWindow::makeKeyAndVisible>()
//             .add();
//     });
//
// Nothing refers to a row, so a program with a phone in it links the whole of each library that has some.
#pragma once

#include "Simulator/Runtime/Binder.hpp"

#include <string_view>
#include <vector>

namespace Simulator {

/// The library that brings a class into the shell's process when it is opened, "/usr/lib/libweather.dylib".
struct BroughtBy {
    const char* path;
};
/// Registers the classes that a library brings. Whether there is such a library.
bool bringClassesOf(std::string_view path);
/// The classes that a library brings; none for a path that brings none.
std::vector<std::string_view> classesOf(std::string_view path);

/// What is registered once in a process, when the first phone starts. The rows of the whole program find one another
/// before main.
class StandInRow {
public:
    StandInRow(const StandInRow&) = delete;
    StandInRow& operator=(const StandInRow&) = delete;

protected:
    using Add = void (*)(const char* name, const char* superclass);
    using Condition = bool (*)();

    /// A row without a superclass mends a class that is there already, and comes before all stand-ins.
    StandInRow(const char* name, const char* superclass, Add add, Condition condition, const char* library = nullptr);

private:
    friend class StandInRows;

    const char* const m_name;
    const char* const m_superclass;
    const Add m_add;
    const Condition m_condition;
    const char* const m_library;
    const StandInRow* const m_next;
};

class StandInClass : StandInRow {
public:
    /// `rows` takes the class's binder and ends with `.add()`. With a condition, the class is there only on a phone for
    /// which that holds at the start.
    template <class Rows>
    StandInClass(const char* name, const char* superclass, Rows, Condition condition = nullptr)
        : StandInRow(
            name, superclass, [](const char* own, const char* super) { bind(+Rows(), own, super); }, condition)
    {
    }
    /// A class that is not there before its library is opened.
    template <class Rows>
    StandInClass(const char* name, const char* superclass, BroughtBy library, Rows)
        : StandInRow(
            name, superclass, [](const char* own, const char* super) { bind(+Rows(), own, super); }, nullptr,
            library.path)
    {
    }

private:
    template <class T>
    static void bind(void (*rows)(Binder<T>&), const char* name, const char* superclass)
    {
        Binder<T> binder(name, superclass);
        rows(binder);
    }
};

}
