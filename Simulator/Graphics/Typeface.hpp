// A face made ready for drawing: open, and described to the text engine under a name of its own.
#pragma once

#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Graphics/FontFile.hpp"
#include "Simulator/Graphics/Handles.hpp"

#include <memory>
#include <string>

namespace Simulator::Graphics {

class Typeface {
public:
    /// Null if the face's data is gone or broken by now.
    static std::shared_ptr<Typeface> open(std::shared_ptr<const Font> font);
    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    const Font& font() const { return *m_font; }
    bool covers(char32_t character) const;
    /// The family name that selects exactly this face.
    const std::string& alias() const { return m_alias; }
    /// Made on first use: it lists every character of the face.
    FcPattern* pattern();

private:
    explicit Typeface(std::shared_ptr<const Font> font);

    std::shared_ptr<const Font> m_font;
    std::string m_alias;
    std::string m_path;
    int m_descriptor = -1;
    FacePointer m_face;
    FontPatternPointer m_pattern;
};

}
