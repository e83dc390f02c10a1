// Reads the command line and runs what it asks for.
#include "Simulator/App/CommandLine.hpp"

#include "Simulator/App/Lifeline.hpp"
#include "Simulator/App/LookFile.hpp"
#include "Simulator/App/Preview.hpp"
#include "Simulator/App/Render.hpp"
#include "Simulator/App/Serve.hpp"
#include "Simulator/Base/SystemVersions.hpp"
#include "Simulator/Control/Methods.hpp"
#include "Simulator/Control/ShellProcess.hpp"
#include "Simulator/Control/Types.hpp"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace Simulator::App {

using namespace Control;

namespace {

constexpr int failed = 1;
constexpr int badUsage = 2;

/// An option with one value that is checked as the protocol does it.
CLI::Option* takes(CLI::Option* option, const Type& type, const char* form)
{
    return option->type_name(form)->check([type](const std::string& text) {
        return type.accepts(text) ? "" : "takes " + type.takes + ", not " + quote(text);
    });
}

/// "375x812@3"
std::optional<Json> screenOf(const std::string& text)
{
    double width = 0, height = 0, scale = 0;
    char end = 0;
    if (std::sscanf(text.c_str(), "%lfx%lf@%lf%c", &width, &height, &scale, &end) != 3)
        return std::nullopt;
    const Json screen{{"width", width}, {"height", height}, {"scale", scale}};
    return complaint("screen", screenType(), screen) ? std::nullopt : std::optional(screen);
}

/// The commands' options as they are filled in by the parser.
struct Values {
    StartOptions start;
    std::map<std::string, std::string> single; // single values of `phone.start`
    std::string output;
    PreviewOptions preview;
    std::string root;
    std::string look;
    std::vector<std::string> languages;
    bool stdio = false;
    ShellOptions shellOptions;
    std::string shell = "/proc/self/exe"; // the program of the shell process
    int socket = -1;
};

void addExtension(CLI::App& command, Values& values)
{
    command
        .add_option("--extension", values.shellOptions.extension, "The extension: a library of Linux or of the phone")
        ->type_name("FILE");
}

void addVerbose(CLI::App& command, Values& values)
{
    command.add_flag("--verbose", values.shellOptions.isVerbose, "Print the extension's log on standard error");
}

/// A shell process for another processor, under an emulator; nothing for users.
void addShellProgram(CLI::App& command, Values& values)
{
    command.add_option("--shell", values.shell)->group("");
}

void addStartOptions(CLI::App& command, Values& values)
{
    StartOptions& options = values.start;
    command.add_option("--settings", options.settings, "Settings: a property list (XML or binary) or JSON")
        ->type_name("FILE");
    command.add_option("--colours", options.colours, "Colours: a property list (XML or binary) or JSON")
        ->type_name("FILE");
    command.add_option("--wallpaper", options.wallpaper, "Wallpaper (default: the built-in one)")->type_name("JPEG");
    CLI::Option* const device = command.add_option("--device", options.device,
        "Battery, weather, alarm and events, as device.set takes them, and the seconds of a \"timer\" (default: those "
        "of a phone in use)");
    device->type_name("JSON");
    command.add_flag("--bare", options.isBare, "A full battery and no weather, alarm and events")->excludes(device);
    command.add_option("--font", options.fonts, "Font file for the user font folder; may be repeated")
        ->type_name("FILE")
        ->expected(1)
        ->take_all();
    command.add_flag("--strict", options.isStrict, "Refuse unknown keys, damaged fonts and wallpapers (default: tell)");
    command.add_option("--screen", values.single["screen"], "Screen in points and its scale (default: 375x812@3)")
        ->type_name("WxH@S")
        ->check([](const std::string& text) {
            return screenOf(text)
                ? ""
                : "takes width x height @ scale such as 375x812@3, at most 2048x2048@4, not " + quote(text);
        });
    const auto add
        = [&](const char* flag, const char* parameter, const Type& type, const char* form, const char* help) {
              takes(command.add_option(flag, values.single[parameter], help), type, form);
          };
    add("--time", "time", localTime(), "TIME", "Local time on the phone, 2020-11-15T21:41:00 (default: now)");
    add("--time-zone", "timeZone", timeZone(), "ZONE", "Time zone, Asia/Jerusalem (default: UTC)");
    add("--locale", "locale", locale(), "LOCALE", "Region and formats, he_IL (default: en_US)");
    add("--system", "system", oneOf({systemVersions.begin(), systemVersions.end()}), "VERSION",
        "The phone's system: 13.4, 14.0, 15.0 or 16.0 (default: 14.0)");
    add("--style", "style", oneOf({"light", "dark"}), "STYLE", "light or dark (default: light)");
    takes(command.add_option("--language", values.languages, "Preferred language; may be repeated (default: en)"),
        locale(), "LANGUAGE")
        ->expected(1)
        ->take_all();
}

void addRender(CLI::App& app, Values& values)
{
    CLI::App& command = *app.add_subcommand("render", "Draw a picture of the lock screen");
    command.add_option("-o,--output", values.output, "PNG file to write")->required()->type_name("FILE");
    addExtension(command, values);
    addVerbose(command, values);
    addShellProgram(command, values);
    addStartOptions(command, values);
}

void addServe(CLI::App& app, Values& values)
{
    CLI::App& command = *app.add_subcommand("serve", "Serve the control protocol to scripts and tests");
    command.add_flag("--stdio", values.stdio, "One JSON-RPC request a line in, one reply a line out")->required();
    addExtension(command, values);
    addVerbose(command, values);
    addShellProgram(command, values);
}

CLI::Option* addRoot(CLI::App& command, Values& values, const Type& folder, const char* help)
{
    return takes(command.add_option("--root", values.root, help), folder, "DIR");
}

void addPreview(CLI::App& app, Values& values)
{
    CLI::App& command = *app.add_subcommand("preview", "Show the live phone in a browser");
    command.add_option("--port", values.preview.port, "Port on this machine (default: any that is free)")
        ->type_name("N")
        ->check(CLI::Range(1, 65535));
    addRoot(command, values, hostFolderToBe(),
        "Folder that is the phone's / and is kept, made where it is missing (default: a temporary one)");
    addVerbose(command, values);
    addStartOptions(command, values);
}

void addLook(CLI::App& app, Values& values)
{
    CLI::App& look = *app.add_subcommand("look", "Settings and colours of a phone as one file");
    look.require_subcommand(1);
    for (const auto& [name, help] : {std::pair{"export", "Write the phone's look into a file"},
             std::pair{"import", "Give the phone the look of a file"}}) {
        CLI::App& command = *look.add_subcommand(name, help);
        command.add_option("file", values.look, "A look")->required()->type_name("FILE.lyrlook");
        addRoot(command, values, hostFolder(), "Folder that is the phone's /")->required();
    }
}

/// How the program runs itself; nothing for users.
void addShell(CLI::App& app, Values& values)
{
    CLI::App& command = *app.add_subcommand("shell")->group("");
    command.add_option("--fd", values.socket)->required();
    addExtension(command, values);
    addVerbose(command, values);
}

void describe(CLI::App& app, Values& values)
{
    app.set_help_flag();
    app.set_help_all_flag("-h,--help", "Say all of this and exit");
    app.set_version_flag("--version", std::string("lyr ") + LYR_VERSION, "Say the version and exit");
    app.require_subcommand(0, 1);
    addRender(app, values);
    addServe(app, values);
    addPreview(app, values);
    addLook(app, values);
    addShell(app, values);
}

StartOptions startOptions(const Values& values)
{
    StartOptions options = values.start;
    Json& start = options.phone;
    for (const auto& [parameter, text] : values.single) {
        if (!text.empty())
            start[parameter] = parameter == "screen" ? *screenOf(text) : Json(text);
    }
    if (!values.languages.empty())
        start["languages"] = values.languages;
    return options;
}

void logLine(const std::string& line)
{
    std::cerr << "lyr: " << line << std::endl;
}

int runShell(const Values& values, const PhoneKind& kind)
{
    const auto shell = kind.make(values.shellOptions);
    return ShellProcess(*shell, Descriptor(values.socket)).run();
}

/// The file itself is looked at first, so that what is wrong with it is said at once.
std::vector<std::string> shellCommand(const Values& values, const PhoneKind& kind)
{
    std::vector<std::string> command{values.shell, "shell"};
    if (values.shellOptions.isVerbose)
        command.push_back("--verbose");
    const std::string& extension = values.shellOptions.extension;
    if (extension.empty())
        return command;
    try {
        kind.checkExtension(extension);
    } catch (const std::exception& error) {
        throw Failure(extension + ": cannot be loaded: " + error.what());
    }
    command.insert(command.end(), {"--extension", std::filesystem::absolute(extension).string()});
    return command;
}

int runCommand(const CLI::App& app, Values& values, const PhoneKind& kind)
{
    if (app.got_subcommand("shell"))
        return runShell(values, kind);
    if (app.got_subcommand("look"))
        return app.get_subcommand("look")->got_subcommand("export") ? exportLook(values.root, values.look)
                                                                    : importLook(values.root, values.look);
    Supervisor::Options options;
    options.shellCommand = shellCommand(values, kind);
    options.methods = kind.methods;
    options.log = logLine;
    if (app.got_subcommand("serve"))
        return serve(std::move(options));
    if (app.got_subcommand("preview")) {
        values.preview.start = startOptions(values);
        values.preview.root = values.root;
        return preview(values.preview, std::move(options));
    }
    return render({startOptions(values), values.output}, std::move(options));
}

std::string firstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

}

int run(int argumentCount, char** arguments, const PhoneKind& kind)
{
    openClosedStreams();
    CLI::App app("LYR Pro: the lock screen of a simulated phone.", "lyr");
    Values values;
    describe(app, values);
    try {
        app.parse(argumentCount, arguments);
        if (app.get_subcommands().empty())
            throw CLI::RequiredError("a command, render, preview, look or serve,");
        return runCommand(app, values, kind);
    } catch (const CLI::Success& wish) {
        return app.exit(wish);
    } catch (const CLI::ParseError& error) {
        logLine(firstLine(error.what()) + "; lyr --help says what there is");
        return badUsage;
    } catch (const std::exception& error) {
        logLine(firstLine(error.what()));
        return failed;
    }
}

}
