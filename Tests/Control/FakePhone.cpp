// The fake phone's methods.
#include "Tests/Control/FakePhone.hpp"

#include "Simulator/Control/Methods.hpp"
#include "Simulator/Control/Types.hpp"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace FakePhone {

using namespace Simulator::Control;

namespace {

class FakeShell : public Shell {
public:
    void start(const ShellStart& start) override
    {
        const Json settings = start.parameters.value("settings", Json::object());
        m_start = start;
        m_isStarted = true;
        if (start.state.is_object()) {
            m_time = start.state.at("time");
            m_notes = start.state.at("notes");
        }
        if (settings.contains("refuseToStart"))
            throw std::runtime_error("the fake phone refuses to start");
        if (settings.contains("crashAtStart") && (settings["crashAtStart"] == "always" || !start.isSafeMode))
            std::abort();
        m_wantsRelaunch = settings.contains("relaunchAtStart") && !start.isSafeMode;
    }

    Json state() const override { return {{"time", m_time}, {"notes", m_notes}}; }
    bool wantsRelaunch() const override { return m_wantsRelaunch; }
    std::optional<double> nextDue() const override { return m_later.empty() ? std::nullopt : std::optional(0.0); }

    void runDue() override
    {
        if (!m_isStarted)
            std::abort(); // there is nothing yet that could be due
        if (m_later == "crash")
            std::raise(SIGSEGV);
        if (m_later == "relaunch")
            m_wantsRelaunch = true;
        m_later.clear();
    }

    void addMethods(Dispatcher& dispatcher) override
    {
        addProtocolMethods(dispatcher);
        const auto add = [&](const char* name, Dispatcher::Handler handler) {
            for (const Method& method : methods()) {
                if (method.name == name)
                    dispatcher.add(method, std::move(handler));
            }
        };
        add("fake.echo", [](const Json& parameters) { return parameters; });
        add("fake.note", [this](const Json& parameters) {
            m_notes.push_back(parameters.at("text"));
            return Json{{"notes", m_notes}};
        });
        add("fake.start", [this](const Json&) { return toJson(m_start); });
        add("fake.crash", [](const Json& parameters) {
            std::raise(parameters.at("signal").get<int>());
            return Json::object();
        });
        add("fake.exit", [](const Json& parameters) -> Json { std::_Exit(parameters.at("status").get<int>()); });
        add("fake.hang", [](const Json&) -> Json {
            for (;;)
                pause();
        });
        add("fake.relaunch", [this](const Json&) {
            m_wantsRelaunch = true;
            return Json{{"asked", true}};
        });
        add("fake.babble", [this](const Json&) { return babble(); });
        add("fake.later", [this](const Json& parameters) {
            m_later = parameters.at("what");
            return Json::object();
        });
    }

private:
    void addProtocolMethods(Dispatcher& dispatcher)
    {
        dispatcher.add("phone.info", [this](const Json&) {
            return Json{{"time", m_time}, {"screen", m_start.parameters.value("screen", Json())}};
        });
        const auto pass = [this](const Json& parameters) {
            m_time += parameters.value("seconds", 0.0);
            return Json::object();
        };
        dispatcher.add("phone.timer", [this](const Json& parameters) {
            m_timer = parameters.at("seconds");
            return Json::object();
        });
        dispatcher.add("clock.advance", pass);
        dispatcher.add("clock.settle", pass);
        dispatcher.add("screen.capture", [this](const Json& parameters) {
            const std::string path = parameters.at("path");
            Json picture = toJson(m_start);
            if (!m_timer.is_null())
                picture["timer"] = m_timer;
            std::ofstream(path) << toLine(picture);
            return Json::object();
        });
    }

    /// Writes what is no document where the next reply is expected.
    Json babble() const
    {
        // The supervisor's end is the one socket among what the process inherited.
        for (int descriptor = 3; descriptor < 64; ++descriptor) {
            struct stat status {};
            if (fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode)
                && write(descriptor, "{\"half\n", 7) == 7)
                break;
        }
        return Json::object();
    }

    ShellStart m_start;
    bool m_isStarted = false;
    double m_time = 0;
    Json m_timer;
    Json m_notes = Json::array();
    std::string m_later;
    bool m_wantsRelaunch = false;
};

}

const std::vector<Method>& methods()
{
    static const std::vector<Method> all = [] {
        constexpr auto required = Presence::required;
        std::vector<Method> methods = protocolMethods();
        methods.insert(methods.end(),
            {{"fake.echo", {{"value", anything(), required}}}, {"fake.note", {{"text", text(), required}}},
                {"fake.start", {}}, {"fake.crash", {{"signal", number(0, 255), required}}},
                {"fake.exit", {{"status", number(0, 255), required}}}, {"fake.hang", {}}, {"fake.relaunch", {}},
                {"fake.babble", {}}, {"fake.later", {{"what", oneOf({"crash", "relaunch"}), required}}}});
        return methods;
    }();
    return all;
}

std::unique_ptr<Shell> make()
{
    return std::make_unique<FakeShell>();
}

}
