// The fixture of tests that hold the extension's variables in their hands: a shell with the extension loaded into it.
#pragma once

#include "Simulator/Loader/ExtensionLoader.hpp"
#include "Tests/SpringBoard/ShellTest.hpp"

namespace Simulator {

class ExtensionTest : public ShellTest {
protected:
    ExtensionTest()
    {
        static const bool loaded = [] {
            PhoneFiles::shared().setRoot(EXTENSION_FOLDER);
            return ExtensionLoader::shared().loadAll() == 1;
        }();
        if (!loaded)
            throw std::runtime_error("the extension is not in " EXTENSION_FOLDER);
        PhoneFiles::shared().setRoot(root());
    }

    /// One of the extension's variables.
    template <class T>
    T& variable(const std::string& name)
    {
        const auto* row = ExtensionLoader::shared().variable(name);
        if (!row)
            throw std::invalid_argument("the extension has no " + name);
        return *static_cast<T*>(row->address);
    }
};

}
