// The weights of an area average or a linear blend, and their sums over the arriving rows.
#include "Simulator/Graphics/Resampler.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Simulator::Graphics {

/// The channels of a pixel, reckoned together.
using FourBytes [[gnu::vector_size(4)]] = std::uint8_t;
using FourInts [[gnu::vector_size(16)]] = std::int32_t;
using FourFloats [[gnu::vector_size(16)]] = float;

Resampler::Resampler(PixelSize full, const PixelRect& window, Pixels& out)
    : m_full(full)
    , m_window(window)
    , m_out(out)
{
}

Resampler::Contributions Resampler::contributions(int sourceCount, double exactSource, int full, int start, int count)
{
    Contributions result(static_cast<std::size_t>(count));
    const double step = exactSource / full;
    std::vector<double> weights;
    for (int i = 0; i < count; ++i) {
        // Reducing covers the pixel's own extent; enlarging reaches to the two nearest centres.
        const double center = (start + i + 0.5) * step;
        const double half = std::max(step, 1.0) / 2;
        const double low = std::clamp(center - half, 0.0, exactSource);
        const double high = std::clamp(center + half, 0.0, exactSource);
        Contribution& contribution = result[static_cast<std::size_t>(i)];
        contribution.first = std::min(static_cast<int>(low), sourceCount - 1);
        const int end = std::clamp(static_cast<int>(std::ceil(high)), contribution.first + 1, sourceCount);
        double sum = 0;
        weights.clear();
        for (int source = contribution.first; source < end; ++source) {
            const double covered = std::min<double>(high, source + 1) - std::max<double>(low, source);
            weights.push_back(std::max(covered, 0.0));
            sum += weights.back();
        }
        contribution.weights.reserve(weights.size());
        for (const double weight : weights)
            contribution.weights.push_back(static_cast<float>(sum > 0 ? weight / sum : 1.0 / weights.size()));
    }
    return result;
}

bool Resampler::begin(PixelSize size, Size exact)
{
    m_source = size;
    m_isCopy = size == m_full && exact.width == size.width && exact.height == size.height;
    if (m_isCopy)
        return true;
    m_columns = contributions(size.width, exact.width, m_full.width, m_window.x, m_window.width);
    m_rows = contributions(size.height, exact.height, m_full.height, m_window.y, m_window.height);
    m_reduced.resize(static_cast<std::size_t>(m_window.width) * 4);
    return true;
}

void Resampler::row(const std::uint8_t* pixels)
{
    if (m_isCopy)
        copyRow(pixels);
    else
        reduceRow(pixels);
    ++m_sourceRow;
}

void Resampler::copyRow(const std::uint8_t* pixels)
{
    const int y = m_sourceRow - m_window.y;
    if (y >= 0 && y < m_window.height)
        std::memcpy(m_out.row(y), pixels + static_cast<std::size_t>(m_window.x) * 4, m_out.stride());
}

void Resampler::reduceRow(const std::uint8_t* pixels)
{
    const int rowCount = static_cast<int>(m_rows.size());
    if (m_outRow >= rowCount || m_sourceRow < m_rows[static_cast<std::size_t>(m_outRow)].first)
        return;
    float* reduced = m_reduced.data();
    for (const Contribution& column : m_columns) {
        FourFloats sum = {};
        const std::uint8_t* source = pixels + static_cast<std::size_t>(column.first) * 4;
        for (const float weight : column.weights) {
            FourBytes pixel;
            std::memcpy(&pixel, source, sizeof pixel);
            sum += weight * __builtin_convertvector(__builtin_convertvector(pixel, FourInts), FourFloats);
            source += 4;
        }
        std::memcpy(reduced, &sum, sizeof sum);
        reduced += 4;
    }
    for (int out = m_outRow; out < rowCount; ++out) {
        const Contribution& contribution = m_rows[static_cast<std::size_t>(out)];
        if (contribution.first > m_sourceRow)
            break;
        const auto index = static_cast<std::size_t>(out - m_outRow);
        if (index == m_sums.size())
            m_sums.emplace_back(m_reduced.size(), 0.5f);
        if (m_sourceRow >= contribution.end())
            continue;
        const float weight = contribution.weights[static_cast<std::size_t>(m_sourceRow - contribution.first)];
        float* sums = m_sums[index].data();
        for (std::size_t i = 0; i < m_reduced.size(); ++i)
            sums[i] += weight * m_reduced[i];
    }
    while (!m_sums.empty() && m_rows[static_cast<std::size_t>(m_outRow)].end() <= m_sourceRow + 1)
        finishFirst();
}

void Resampler::finishFirst()
{
    std::uint8_t* out = m_out.row(m_outRow);
    const std::vector<float>& sums = m_sums.front();
    // The half for rounding is in the sums from their beginning.
    for (std::size_t i = 0; i < sums.size(); ++i)
        out[i] = static_cast<std::uint8_t>(std::min(sums[i], 255.5f));
    m_sums.pop_front();
    ++m_outRow;
}

}
