// One thread: the phone's calls are short, and a frame is drawn by the shell process.
#include "Simulator/Preview/Server.hpp"

#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Preview/Answers.hpp"
#include "Simulator/Preview/Browser.hpp"
#include "Simulator/Preview/FileWatch.hpp"
#include "Simulator/Preview/FrameMessage.hpp"

#include <algorithm>
#include <set>

namespace Simulator::Preview {

using namespace Control;

namespace {

// Sixty frames a second at most.
constexpr std::chrono::microseconds frameInterval{16'667};
constexpr std::chrono::milliseconds refreshInterval{100};
constexpr std::size_t mostBrowsers = 64;

// Milliseconds since 1970, the clock that a page has as well.
double now()
{
    using namespace std::chrono;
    return duration<double, std::milli>(system_clock::now().time_since_epoch()).count();
}

class Server final : public Browser::Host {
public:
    Server(Supervisor::Options options, const ServerOptions& given);

    void run() { _network.run(); }

private:
    Supervisor::Options withLog(Supervisor::Options);
    Network::Service service();
    void watchShell();

    Json call(const std::string& method, const Json& parameters) override;
    Json standing() const override { return _phone->standing(); }
    void wantsFrame() override { schedule(); }
    void wantsAll(Browser&) override;
    void left(Browser& browser) override;

    // After anything that the phone did.
    void attend();
    void refreshClock();
    void tellStanding();
    void schedule();
    void showScreen();
    void draw();
    void sendFrames();

    const ServerOptions& _options;
    Network _network;
    unsigned short _port;
    std::unique_ptr<LivePhone> _phone;
    Supervisor _supervisor;
    std::unique_ptr<FileWatch> _watch;
    std::unique_ptr<Network::Watch> _interruption;
    std::unique_ptr<Network::Watch> _shell;
    std::unique_ptr<Network::Watch> _stored;
    Network::Clock::time_point _lastDrawn{};
    std::set<std::shared_ptr<Browser>> _browsers;
    Json _told; // how the phone stood when the browsers were last told
    Json _times = Json::object(); // of the frame that is due, as the page has them
    int _process = -1; // the watched shell process
    bool _isScheduled = false;
    bool _isRefreshing = false;
    bool _wantsRefresh = false;
    std::uint64_t _frames = 0;
};

Server::Server(Supervisor::Options options, const ServerOptions& given)
    : _options(given)
    , _port(_network.listen(given.port))
    , _supervisor(withLog(std::move(options)))
{
    _phone = std::make_unique<LivePhone>(_supervisor, given.root, given.withGlyph);
    _phone->start(given.start);
    const auto preferences
        = std::filesystem::path(given.root) / std::filesystem::path(settingsPath.substr(1)).parent_path();
    _watch = std::make_unique<FileWatch>(preferences.string(),
        std::vector{std::filesystem::path(settingsPath).filename().string(),
            std::filesystem::path(coloursPath).filename().string()});
    _stored = _network.watch(_watch->descriptor(), [this] { attend(); });
    _interruption = _network.watch(given.interruption, given.interrupt);
    attend();
    _network.serve(service());
    given.ready("http://127.0.0.1:" + std::to_string(_port) + "/");
}

Supervisor::Options Server::withLog(Supervisor::Options options)
{
    options.clock = "real";
    options.log = [this, log = options.log](const std::string& line) {
        log(line);
        if (_phone)
            _phone->noteEnd(line);
    };
    return options;
}

Network::Service Server::service()
{
    return {.hasRoom = [this] { return _browsers.size() < mostBrowsers; },
        .answer = [this](const Request& request) { return answerTo(request, _options.page, _port); },
        .entered =
            [this](std::unique_ptr<WebSocket> socket) {
                const auto browser = std::make_shared<Browser>(std::move(socket), *this);
                _browsers.insert(browser);
                browser->enter();
            }};
}

void Server::watchShell()
{
    _shell.reset();
    if (_phone->descriptor() < 0)
        return;
    _shell = _network.watch(_phone->descriptor(), [this] {
        _phone->notice();
        attend();
    });
}

Json Server::call(const std::string& method, const Json& parameters)
{
    _times["received"] = now();
    try {
        Json result = _phone->call(method, parameters);
        _times["answered"] = now();
        attend();
        _times["attended"] = now();
        return result;
    } catch (const ProtocolError&) {
        attend();
        throw;
    }
}

void Server::left(Browser& browser)
{
    _browsers.erase(browser.shared_from_this());
}

void Server::wantsAll(Browser& browser)
{
    browser.stale.addAll(_phone->frame().tileCount());
    schedule();
}

void Server::attend()
{
    if (std::exchange(_process, _phone->process()) != _phone->process())
        watchShell();
    // The shell process writes before it answers, so that what a call has stored is seen right after it.
    if (_watch->tookPlace()) {
        refreshClock();
        for (const auto& browser : _browsers)
            browser->tellStored();
    }
    tellStanding();
    schedule();
}

// A slider is moved more often than the clock can follow.
void Server::refreshClock()
{
    _wantsRefresh = _isRefreshing;
    if (_isRefreshing)
        return;
    _isRefreshing = true;
    _phone->refresh();
    _network.at(Network::Clock::now() + refreshInterval, [this] {
        _isRefreshing = false;
        if (_wantsRefresh)
            refreshClock();
        attend();
    });
}

void Server::tellStanding()
{
    Json standing = _phone->standing();
    if (standing == _told)
        return;
    _told = std::move(standing);
    for (const auto& browser : _browsers)
        browser->tellStanding();
}

void Server::schedule()
{
    const auto isDue = [this](const std::shared_ptr<Browser>& browser) {
        return browser->isReady() && (_phone->mayLookOther() || !browser->stale.isEmpty());
    };
    if (_isScheduled || std::none_of(_browsers.begin(), _browsers.end(), isDue))
        return;
    _isScheduled = true;
    _network.at(_lastDrawn + frameInterval, [this] {
        _isScheduled = false;
        showScreen();
    });
}

void Server::showScreen()
{
    if (_phone->mayLookOther())
        draw();
    sendFrames();
    attend();
}

void Server::draw()
{
    _lastDrawn = Network::Clock::now();
    _times["asked"] = now();
    try {
        const auto tiles = _phone->draw();
        for (const auto& browser : _browsers)
            browser->stale.add(tiles);
    } catch (const ProtocolError&) {
        // It comes back, or is gone; the browsers are told. A phone that cannot be drawn is not tried all the time.
        _lastDrawn += std::chrono::seconds(1);
    }
    _times["drawn"] = now();
}

void Server::sendFrames()
{
    std::vector<std::pair<Tiles, std::shared_ptr<const std::string>>> made;
    for (const auto& browser : _browsers) {
        if (!browser->isReady() || browser->stale.isEmpty())
            continue;
        auto found
            = std::find_if(made.begin(), made.end(), [&](const auto& one) { return one.first == browser->stale; });
        if (found == made.end()) {
            const auto& frame = _phone->frame();
            const Json header{{"frame", ++_frames}, {"pixels", {frame.width(), frame.height()}},
                {"screen", _phone->screen()}, {"secondsDrawn", _phone->secondsDrawn()}, {"times", _times}};
            made.emplace_back(
                browser->stale, std::make_shared<const std::string>(frameMessage(frame, browser->stale, header)));
            found = std::prev(made.end());
        }
        browser->send(found->second);
    }
    if (!made.empty())
        _times = Json::object();
}

}

void serve(Supervisor::Options options, const ServerOptions& given)
{
    Server(std::move(options), given).run();
}

}
