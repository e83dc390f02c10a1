// A simulated phone for end-to-end tests:
//     auto phone = Phone::at("2020-11-15T21:41:00").settings({{"enabled", true}}).start();
#pragma once

#include "Tests/Support/Program.hpp"
#include "Tests/Support/Views.hpp"

#include <memory>

namespace Support {

class Phone;

/// Every parameter of `phone.start`, one call each.
class PhoneStart {
public:
    PhoneStart& screen(double width, double height, double scale);
    PhoneStart& time(const std::string& localTime) { return with("time", localTime); }
    PhoneStart& timeZone(const std::string& name) { return with("timeZone", name); }
    PhoneStart& locale(const std::string& name) { return with("locale", name); }
    PhoneStart& languages(const std::vector<std::string>& names) { return with("languages", names); }
    PhoneStart& clock(const std::string& kind) { return with("clock", kind); }
    PhoneStart& style(const std::string& name) { return with("style", name); }
    PhoneStart& root(const std::string& hostFolder) { return with("root", hostFolder); }
    PhoneStart& file(const std::string& phonePath, const std::string& hostPath);
    PhoneStart& settings(const Json& values) { return with("settings", values); }
    PhoneStart& colours(const Json& values) { return with("colours", values); }
    PhoneStart& wallpaper(const std::string& hostPath) { return with("wallpaper", hostPath); }
    PhoneStart& withoutWallpaper() { return with("wallpaper", nullptr); }
    PhoneStart& fonts(const std::vector<std::string>& hostPaths) { return with("fonts", hostPaths); }
    PhoneStart& installed(const std::vector<std::string>& names) { return with("installed", names); }
    PhoneStart& battery(const Json& values) { return with("battery", values); }
    PhoneStart& weather(const Json& values) { return with("weather", values); }
    PhoneStart& alarm(const std::string& localTime) { return with("alarm", localTime); }
    PhoneStart& events(const Json& list) { return with("events", list); }
    PhoneStart& withoutExtension() { return with("extension", false); }
    PhoneStart& with(const std::string& parameter, const Json& value);

    const Json& parameters() const { return m_parameters; }
    Phone start() const;

private:
    Json m_parameters = Json::object();
};

class Phone {
public:
    static PhoneStart at(const std::string& localTime) { return PhoneStart().time(localTime); }
    /// A program that serves, and no phone in it yet.
    static Phone notStarted() { return Phone(); }

    /// A method of the control protocol; throws a ControlError.
    Json call(const std::string& method, const Json& parameters = Json::object());
    /// The code of the error that the call ends in; 0 if it succeeds.
    int errorCode(const std::string& method, const Json& parameters = Json::object());
    Program& program() { return *m_program; }

    void start(const PhoneStart& start) { call("phone.start", start.parameters()); }
    Json info() { return call("phone.info"); }
    void settle(double seconds = 10) { call("clock.settle", {{"seconds", seconds}}); }
    void advance(double seconds) { call("clock.advance", {{"seconds", seconds}}); }

    View tree() { return View(call("view.tree")); }
    bool has(const std::string& id) { return errorCode("view.get", {{"id", id}}) == 0; }
    View view(const std::string& id) { return View(get(id)); }
    Label label(const std::string& id) { return Label(get(id)); }
    Range range(const std::string& id) { return Range(get(id)); }
    Segments segments(const std::string& id) { return Segments(get(id)); }
    Button button(const std::string& id) { return Button(get(id)); }
    Picker picker(const std::string& id) { return Picker(get(id)); }
    ColourWell colourWell(const std::string& id) { return ColourWell(get(id)); }
    Json get(const std::string& id) { return call("view.get", {{"id", id}}); }

    /// A finger: on a view's middle, at a point of the screen, or in steps.
    void tap(const std::string& id) { call("touch.tap", {{"id", id}}); }
    void tapAt(double x, double y) { call("touch.tap", {{"at", {x, y}}}); }
    void press(const std::string& id, double seconds = 0.6) { call("touch.press", {{"id", id}, {"seconds", seconds}}); }
    void pressAt(double x, double y, double seconds = 0.6);
    void drag(Point from, Point to, double seconds = 0.3);
    void down(double x, double y) { call("touch.down", {{"at", {x, y}}}); }
    void move(double x, double y) { call("touch.move", {{"at", {x, y}}}); }
    void up(double x, double y) { call("touch.up", {{"at", {x, y}}}); }
    /// Leaves a control as a finger would.
    void setControl(const std::string& id, const Json& value) { call("control.set", {{"id", id}, {"value", value}}); }
    void trackControl(const std::string& id, const Json& value);

    /// What is stored, and what the extension's variable holds of it.
    Json settings() { return call("settings.get").at("values"); }
    void set(const Json& values) { call("settings.set", {{"values", values}}); }
    Json bound(const std::string& key) { return call("settings.bound", {{"key", key}}).at("value"); }
    Json colours() { return call("colours.get").at("values"); }
    void setColours(const Json& values) { call("colours.set", {{"values", values}}); }

    Json global(const std::string& name) { return call("global.get", {{"name", name}}).at("value"); }
    Json send(const Json& target, const std::string& selector, const Json& arguments = Json::array());
    /// Records of a kind, or all; what is read is taken.
    std::vector<Json> takeLog(const std::string& kind = "");

    std::string readFile(const std::string& path);
    void writeFile(const std::string& path, const std::string& bytes);
    /// A PNG.
    std::string capture();

    /// Ends the program; answers its exit status.
    int end() { return m_program->end(); }

private:
    Phone()
        : m_program(std::make_unique<Program>())
    {
    }

    std::unique_ptr<Program> m_program;
};

}

using Support::Phone;
