// Splits a stream of bytes into lines, and keeps no more of a line than it may have.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator::Control {

class LineReader {
public:
    struct Line {
        std::string text;
        bool isTooLong = false; // the text was dropped
    };

    explicit LineReader(std::size_t longestLine)
        : m_longestLine(longestLine)
    {
    }

    void feed(std::string_view bytes);
    /// The stream has ended: a last line without a newline is a line too.
    void finish();
    std::optional<Line> next();

private:
    void dropOverlong();

    std::size_t m_longestLine;
    std::string m_buffer;
    std::size_t m_start = 0; // of the next line
    std::size_t m_searched = 0; // up to here there is no newline after `m_start`
    bool m_isDropping = false;
};

}
