// Splits a stream of bytes into lines.
#include "Simulator/Control/LineReader.hpp"

namespace Simulator::Control {

void LineReader::feed(std::string_view bytes)
{
    if (m_start > 0) {
        m_buffer.erase(0, m_start);
        m_searched -= m_start;
        m_start = 0;
    }
    m_buffer.append(bytes);
}

void LineReader::finish()
{
    if (m_buffer.empty() ? m_isDropping : m_buffer.back() != '\n')
        m_buffer.push_back('\n');
}

std::optional<LineReader::Line> LineReader::next()
{
    const std::size_t newline = m_buffer.find('\n', m_searched);
    if (newline == std::string::npos) {
        dropOverlong();
        return std::nullopt;
    }
    Line line;
    line.isTooLong = m_isDropping || newline - m_start > m_longestLine;
    if (!line.isTooLong)
        line.text = m_buffer.substr(m_start, newline - m_start);
    m_start = m_searched = newline + 1;
    m_isDropping = false;
    return line;
}

void LineReader::dropOverlong()
{
    m_searched = m_buffer.size();
    if (!m_isDropping && m_buffer.size() - m_start <= m_longestLine)
        return;
    m_isDropping = true;
    m_buffer.clear();
    m_start = m_searched = 0;
}

}
