// What a test reads of a view; the reply it was read from is kept for all else.
#pragma once

#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace Support {

using Json = nlohmann::json;
using Rectangle = std::array<double, 4>; // x, y, width, height
using Point = std::array<double, 2>; // x, y
using Colour = std::optional<std::string>; // "#RRGGBBAA"

struct View {
    explicit View(const Json& reply);

    std::string className;
    std::string id;
    Rectangle frame;
    Rectangle bounds;
    bool hidden;
    double alpha;
    bool onScreen;
    std::array<double, 6> transform;
    Colour background;
    Colour tint;
    std::vector<View> children; // back to front; only in a tree
    Json json;

    double centreX() const { return frame[0] + frame[2] / 2; }
    double centreY() const { return frame[1] + frame[3] / 2; }
    /// Itself or one further in.
    const View* find(const std::string& id) const;
};

struct Label : View {
    explicit Label(const Json& reply);

    std::string text;
    Json runs;
    std::string fontName;
    double fontSize;
    Colour textColour;
    int alignment; // 0 left, 1 centre, 2 right
    int lines;
};

/// A slider or a stepper.
struct Range : View {
    explicit Range(const Json& reply);

    double value;
    double minimum;
    double maximum;
    std::optional<double> step;
};

struct Segments : View {
    explicit Segments(const Json& reply);

    std::vector<std::string> segments;
    int selected;
};

struct Picker : View {
    explicit Picker(const Json& reply);

    int rows;
    int selected;
};

struct ColourWell : View {
    explicit ColourWell(const Json& reply);

    std::optional<std::string> title;
    Colour selected;
};

struct Button : View {
    explicit Button(const Json& reply);

    std::optional<std::string> title;
    std::optional<std::string> symbol;
};

}
