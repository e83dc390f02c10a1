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

/// Sixty frames a second at most.
constexpr std::chrono::microseconds frameInterval{16'667};
constexpr std::chrono::milliseconds refreshInterval{100};
constexpr std::size_t mostBrowsers = 64;

/// Milliseconds since 1970, the clock that a page has as well.
double now()
{
    using namespace std::chrono;
    return duration<double, std::milli>(system_clock::now().time_since_epoch()).count();
}

class Server final : public Browser::Host {
public:
    Server(Supervisor::Options options, const ServerOptions& given);

    void run() { m_network.run(); }

private:
    Supervisor::Options withLog(Supervisor::Options);
    Network::Service service();
    void watchShell();

    Json call(const std::string& method, const Json& parameters) override;
    Json standing() const override { return m_phone->standing(); }
    void wantsFrame() override { schedule(); }
    void wantsAll(Browser&) override;
    void left(Browser& browser) override;

    /// After anything that the phone did.
    void attend();
    void refreshClock();
    void tellStanding();
    void schedule();
    void showScreen();
    void draw();
    void sendFrames();

    const ServerOptions& m_options;
    Network m_network;
    unsigned short m_port;
    std::unique_ptr<LivePhone> m_phone;
    Supervisor m_supervisor;
    std::unique_ptr<FileWatch> m_watch;
    std::unique_ptr<Network::Watch> m_interruption;
    std::unique_ptr<Network::Watch> m_shell;
    std::unique_ptr<Network::Watch> m_stored;
    Network::Clock::time_point m_lastDrawn{};
    std::set<std::shared_ptr<Browser>> m_browsers;
    Json m_told; // how the phone stood when the browsers were last told
    Json m_times = Json::object(); // of the frame that is due, as the page has them
    int m_process = -1; // the watched shell process
    bool m_isScheduled = false;
    bool m_isRefreshing = false;
    bool m_wantsRefresh = false;
    std::uint64_t m_frames = 0;
};

Server::Server(Supervisor::Options options, const ServerOptions& given)
    : m_options(given)
    , m_port(m_network.listen(given.port))
    , m_supervisor(withLog(std::move(options)))
{
    m_phone = std::make_unique<LivePhone>(m_supervisor, given.root, given.withGlyph);
    m_phone->start(given.start);
    const auto preferences
        = std::filesystem::path(given.root) / std::filesystem::path(settingsPath.substr(1)).parent_path();
    m_watch = std::make_unique<FileWatch>(preferences.string(),
        std::vector{std::filesystem::path(settingsPath).filename().string(),
            std::filesystem::path(coloursPath).filename().string()});
    m_stored = m_network.watch(m_watch->descriptor(), [this] { attend(); });
    m_interruption = m_network.watch(given.interruption, given.interrupt);
    attend();
    m_network.serve(service());
    given.ready("http://127.0.0.1:" + std::to_string(m_port) + "/");
}

Supervisor::Options Server::withLog(Supervisor::Options options)
{
    options.clock = "real";
    options.log = [this, log = options.log](const std::string& line) {
        log(line);
        if (m_phone)
            m_phone->noteEnd(line);
    };
    return options;
}

Network::Service Server::service()
{
    return {.hasRoom = [this] { return m_browsers.size() < mostBrowsers; },
        .answer = [this](const Request& request) { return answerTo(request, m_options.page, m_port); },
        .entered =
            [this](std::unique_ptr<WebSocket> socket) {
                const auto browser = std::make_shared<Browser>(std::move(socket), *this);
                m_browsers.insert(browser);
                browser->enter();
            }};
}

void Server::watchShell()
{
    m_shell.reset();
    if (m_phone->descriptor() < 0)
        return;
    m_shell = m_network.watch(m_phone->descriptor(), [this] {
        m_phone->notice();
        attend();
    });
}

Json Server::call(const std::string& method, const Json& parameters)
{
    m_times["received"] = now();
    try {
        Json result = m_phone->call(method, parameters);
        m_times["answered"] = now();
        attend();
        m_times["attended"] = now();
        return result;
    } catch (const ProtocolError&) {
        attend();
        throw;
    }
}

void Server::left(Browser& browser)
{
    m_browsers.erase(browser.shared_from_this());
}

void Server::wantsAll(Browser& browser)
{
    browser.stale.addAll(m_phone->frame().tileCount());
    schedule();
}

void Server::attend()
{
    if (std::exchange(m_process, m_phone->process()) != m_phone->process())
        watchShell();
    // The shell process writes before it answers, so that what a call has stored is seen right after it.
    if (m_watch->tookPlace()) {
        refreshClock();
        for (const auto& browser : m_browsers)
            browser->tellStored();
    }
    tellStanding();
    schedule();
}

/// A slider is moved more often than the clock can follow.
void Server::refreshClock()
{
    m_wantsRefresh = m_isRefreshing;
    if (m_isRefreshing)
        return;
    m_isRefreshing = true;
    m_phone->refresh();
    m_network.at(Network::Clock::now() + refreshInterval, [this] {
        m_isRefreshing = false;
        if (m_wantsRefresh)
            refreshClock();
        attend();
    });
}

void Server::tellStanding()
{
    Json standing = m_phone->standing();
    if (standing == m_told)
        return;
    m_told = std::move(standing);
    for (const auto& browser : m_browsers)
        browser->tellStanding();
}

void Server::schedule()
{
    const auto isDue = [this](const std::shared_ptr<Browser>& browser) {
        return browser->isReady() && (m_phone->mayLookOther() || !browser->stale.isEmpty());
    };
    if (m_isScheduled || std::none_of(m_browsers.begin(), m_browsers.end(), isDue))
        return;
    m_isScheduled = true;
    m_network.at(m_lastDrawn + frameInterval, [this] {
        m_isScheduled = false;
        showScreen();
    });
}

void Server::showScreen()
{
    if (m_phone->mayLookOther())
        draw();
    sendFrames();
    attend();
}

void Server::draw()
{
    m_lastDrawn = Network::Clock::now();
    m_times["asked"] = now();
    try {
        const auto tiles = m_phone->draw();
        for (const auto& browser : m_browsers)
            browser->stale.add(tiles);
    } catch (const ProtocolError&) {
        // It comes back, or is gone; the browsers are told. A phone that cannot be drawn is not tried all the time.
        m_lastDrawn += std::chrono::seconds(1);
    }
    m_times["drawn"] = now();
}

void Server::sendFrames()
{
    std::vector<std::pair<Tiles, std::shared_ptr<const std::string>>> made;
    for (const auto& browser : m_browsers) {
        if (!browser->isReady() || browser->stale.isEmpty())
            continue;
        auto found
            = std::find_if(made.begin(), made.end(), [&](const auto& one) { return one.first == browser->stale; });
        if (found == made.end()) {
            const auto& frame = m_phone->frame();
            const Json header{{"frame", ++m_frames}, {"pixels", {frame.width(), frame.height()}},
                {"screen", m_phone->screen()}, {"secondsDrawn", m_phone->secondsDrawn()}, {"times", m_times}};
            made.emplace_back(
                browser->stale, std::make_shared<const std::string>(frameMessage(frame, browser->stale, header)));
            found = std::prev(made.end());
        }
        browser->send(found->second);
    }
    if (!made.empty())
        m_times = Json::object();
}

}

void serve(Supervisor::Options options, const ServerOptions& given)
{
    Server(std::move(options), given).run();
}

}
