// Splits a stream of bytes into lines.
#include "Simulator/Control/LineReader.hpp"

namespace Simulator::Control {

void LineReader::feed(std::string_view bytes)
{
    if (_start > 0) {
        _buffer.erase(0, _start);
        _searched -= _start;
        _start = 0;
    }
    _buffer.append(bytes);
}

void LineReader::finish()
{
    if (_buffer.empty() ? _isDropping : _buffer.back() != '\n')
        _buffer.push_back('\n');
}

std::optional<LineReader::Line> LineReader::next()
{
    const std::size_t newline = _buffer.find('\n', _searched);
    if (newline == std::string::npos) {
        dropOverlong();
        return std::nullopt;
    }
    Line line;
    line.isTooLong = _isDropping || newline - _start > _longestLine;
    if (!line.isTooLong)
        line.text = _buffer.substr(_start, newline - _start);
    _start = _searched = newline + 1;
    _isDropping = false;
    return line;
}

void LineReader::dropOverlong()
{
    _searched = _buffer.size();
    if (!_isDropping && _buffer.size() - _start <= _longestLine)
        return;
    _isDropping = true;
    _buffer.clear();
    _start = _searched = 0;
}

}
