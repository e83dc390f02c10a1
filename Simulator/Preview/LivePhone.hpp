// The one phone that all browsers look at: calls, its picture, and what is to be told of it.
#pragma once

#include "Simulator/Control/SharedFrame.hpp"
#include "Simulator/Control/Supervisor.hpp"

#include <functional>

namespace Simulator::Preview {

/// Weather with the picture of its conditions at a local time.
using WithGlyph = std::function<Control::Json(const Control::Json& weather, const std::string& time)>;

class LivePhone {
public:
    /// The root is the phone's `/` for as long as the preview lives, whatever starts there.
    LivePhone(Control::Supervisor&, std::string root, WithGlyph);

    void start(Control::Json parameters);
    /// A method of the protocol, or one of the preview's own; throws a ProtocolError.
    Control::Json call(const std::string& method, const Control::Json& parameters);
    /// Attends to the shell process.
    void notice() { m_supervisor.notice(); }
    /// The stored settings or colours became others: the lock screen is to show them at once.
    void refresh();

    bool mayLookOther() const { return descriptor() >= 0 && m_supervisor.mayLookOther(); }
    /// Draws. Answers the tiles that differ.
    std::vector<std::size_t> draw();
    const Control::SharedFrame& frame() const { return m_frame; }
    /// Of the last drawing: the screen's size in points, and how long it took.
    const Control::Json& screen() const { return m_screen; }
    double secondsDrawn() const { return m_secondsDrawn; }

    /// What the page shows beside the picture.
    Control::Json standing() const;
    /// How the last shell process ended that nobody had asked to.
    void noteEnd(std::string line) { m_lastEnd = std::move(line); }

    int descriptor() const { return m_supervisor.descriptor(); }
    /// Which of the phone's shell processes the descriptor is of.
    int process() const { return m_supervisor.standing().at("starts"); }
    const std::string& root() const { return m_root; }

private:
    Control::Json setLook(const Control::Json& look);
    Control::Json weatherNow(const Control::Json& weather);

    Control::Supervisor& m_supervisor;
    std::string m_root;
    WithGlyph m_withGlyph;
    Control::Dispatcher m_own;
    Control::SharedFrame m_frame;
    Control::Json m_screen;
    double m_secondsDrawn = 0;
    std::string m_lastEnd;
};

}
