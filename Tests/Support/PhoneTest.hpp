// The fixture of whatever needs a phone: a fresh one for each test, on a virtual clock and with an empty disk.
#pragma once

#include "Platform/ObjC/Runtime.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace Simulator {

/// 21:41 UTC on 15 November 2020, a Sunday, in seconds since 2001.
inline constexpr double sundayEvening = 627169260;

class PhoneTest : public testing::Test {
protected:
    /// The phone has all classes that are linked into the program; what it is to have installed is said by `prepare`.
    explicit PhoneTest(
        double now = sundayEvening, void (*prepare)() = [] {})
    {
        std::filesystem::create_directories(m_root);
        PhoneFiles::shared().setRoot(m_root);
        Loop::shared().reset(now);
        prepare();
        m_phone.start();
        pool.emplace();
    }
    ~PhoneTest() override { Loop::shared().reset(0); }

    /// The host folder that is the phone's disk.
    const std::string& root() const { return m_root; }

private:
    Support::TemporaryFolder m_folder;
    const std::string m_root = m_folder.at("root");
    Phone m_phone;

protected:
    std::optional<ObjC::AutoreleasePool> pool;
};

}
