// The stock shell of the phone: window, wallpaper, status bar, cover sheet and home screen, and what a hand does to it.
#pragma once

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

#include <string>

namespace Simulator {

/// When the home screen appears behind the lock screen as the shell starts.
enum class HomeScreenAtStart { later, before, after };

/// One at a time. Needs the classes of UIKit and SpringBoard, the screen's settings, the device's state, the clock.
class Shell {
public:
    Shell();
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// The shell that runs; null if there is none.
    static Shell* current();

    /// Brings up the lock screen: locked, lit, loaded and appeared. What is due later has not run yet.
    void start(HomeScreenAtStart homeScreen = HomeScreenAtStart::later);

    /// The side button, or whoever else, locks and darkens; by the message with a completion if that is asked for.
    void lock(bool byLongForm = false);
    /// Asks for the passcode, or does no more.
    void showPasscode(bool shown);
    /// Lights the screen.
    void wake();
    /// To the home screen.
    void unlock();
    /// Pulls the cover sheet down over what is in front.
    void coverSheet();
    void openApp(const std::string& bundle);
    void memoryWarning();
    void charge(bool charging);
    /// What the system writes into the stock subtitle; the date again for an empty text.
    void subtitle(const std::string& text);
    /// Runs a timer in the subtitle; 0 stops it.
    void timer(double seconds);
    void setStyle(InterfaceStyle style);
    void rotate(bool landscape);

    /// The device's state was changed: battery, appearance. Weather, alarm, events and locale are read when they are
    /// needed.
    void deviceChanged();
    /// The clock was set: the minute begins elsewhere now.
    void clockChanged();

    /// Lays out what needs it, as the phone does at the end of each turn of its run loop. After every operation above
    /// this is done already; whoever runs the loop or sends messages does it afterwards.
    void commit();

    bool isLocked() const { return m_locked; }
    bool isLit() const { return m_lit; }
    bool isCoverSheetPresented() const { return m_presented; }
    UIWindow& window() const;
    UI::ViewController coverSheetController() const { return m_coverSheet; }
    /// The shell's current object of that class, or of one derived from it; nil if there is none.
    ObjC::Object instance(const std::string& className) const;

    /// What the stock lock and backlight objects do.
    void setLocked(bool locked);
    void setLit(bool lit);

private:
    void buildWindow();
    void placeViews();
    void applyDeviceState();
    void present(bool presented);
    void setFrontApp(const std::string& bundle);
    void showHomeScreen();
    void revealHistory(bool revealed);
    void showCharging(bool charging);
    void updateVisibility();
    void updateStatusBar();
    void updateClock();
    void restartMinuteTimer();
    void tickCountdown();
    void showCountdown(const NS::String& text);
    void setSubtitle(const std::string& text);

    UI::View m_window;
    UI::View m_wallpaper;
    UI::View m_statusBar;
    UI::View m_homeIndicator;
    UI::View m_app;
    UI::View m_darkness;
    UI::ViewController m_coverSheet;
    UI::ViewController m_homeScreen;
    std::string m_frontApp;
    bool m_locked = true;
    bool m_lit = false;
    bool m_presented = false;
    TimerId m_minuteTimer = 0;
    TimerId m_countdown = 0;
    double m_countdownEnd = 0;
};

}
