// Running averages over rows, then over columns. Wide blurs work on a reduced picture: nothing finer survives them.
#include "Simulator/Graphics/Blur.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <vector>

namespace Simulator::Graphics {

namespace {

constexpr double largestSigma = 250;
constexpr int passes = 3;

double usableSigma(double sigma)
{
    return std::isfinite(sigma) ? std::clamp(sigma, 0.0, largestSigma) : 0;
}

/// Odd widths of the three averages whose sequence comes closest to the Gaussian; their radii.
std::array<int, passes> averageRadii(double sigma)
{
    sigma = usableSigma(sigma);
    const double ideal = std::sqrt(12 * sigma * sigma / passes + 1);
    int lower = static_cast<int>(ideal);
    if (lower % 2 == 0)
        --lower;
    const double narrowCount
        = (12 * sigma * sigma - passes * lower * lower - 4.0 * passes * lower - 3.0 * passes) / (-4.0 * lower - 4);
    std::array<int, passes> radii{};
    for (int pass = 0; pass < passes; ++pass)
        radii[static_cast<std::size_t>(pass)] = (pass < std::lround(narrowCount) ? lower : lower + 2) / 2;
    return radii;
}

std::uint8_t divided(int sum, float reciprocal)
{
    return static_cast<std::uint8_t>(static_cast<float>(sum) * reciprocal + 0.5f);
}

/// The row with its edge pixels repeated to either side.
template <int channels>
void pad(const std::uint8_t* row, int count, int before, int after, std::vector<std::uint8_t>& padded)
{
    padded.resize(static_cast<std::size_t>((count + before + after) * channels));
    std::uint8_t* to = padded.data();
    for (int i = -before; i < count + after; ++i, to += channels)
        std::copy_n(row + std::clamp(i, 0, count - 1) * channels, channels, to);
}

template <int channels>
void averageRow(const std::uint8_t* padded, std::uint8_t* to, int count, int radius)
{
    const int width = 2 * radius + 1;
    const float reciprocal = 1.0f / static_cast<float>(width);
    int sums[channels] = {};
    for (int i = 0; i < width * channels; ++i)
        sums[i % channels] += padded[i];
    const std::uint8_t* added = padded + width * channels;
    for (int i = 0; i < count; ++i, to += channels, added += channels, padded += channels) {
        for (int channel = 0; channel < channels; ++channel) {
            to[channel] = divided(sums[channel], reciprocal);
            sums[channel] += added[channel] - padded[channel];
        }
    }
}

/// A column is as quick as a row if all columns advance together.
void averageColumns(
    const std::vector<std::uint8_t>& from, std::uint8_t* to, int length, int height, int stride, int radius)
{
    const float reciprocal = 1.0f / static_cast<float>(2 * radius + 1);
    const auto row
        = [&](int y) { return from.data() + static_cast<std::ptrdiff_t>(std::clamp(y, 0, height - 1)) * length; };
    std::vector<int> columnSums(static_cast<std::size_t>(length));
    int* const sums = columnSums.data();
    for (int y = -radius; y <= radius; ++y) {
        const std::uint8_t* added = row(y);
        for (int i = 0; i < length; ++i)
            sums[i] += added[i];
    }
    for (int y = 0; y < height; ++y, to += stride) {
        const std::uint8_t* added = row(y + radius + 1);
        const std::uint8_t* removed = row(y - radius);
        for (int i = 0; i < length; ++i) {
            to[i] = divided(sums[i], reciprocal);
            sums[i] += added[i] - removed[i];
        }
    }
}

template <int channels>
void average(std::uint8_t* pixels, int width, int height, int stride, double sigma)
{
    const int length = width * channels;
    std::vector<std::uint8_t> padded;
    std::vector<std::uint8_t> copy(static_cast<std::size_t>(length) * static_cast<std::size_t>(height));
    for (const int radius : averageRadii(sigma)) {
        if (radius == 0)
            continue;
        for (int y = 0; y < height; ++y) {
            pad<channels>(pixels + static_cast<std::ptrdiff_t>(y) * stride, width, radius, radius + 1, padded);
            averageRow<channels>(padded.data(), copy.data() + static_cast<std::ptrdiff_t>(y) * length, width, radius);
        }
        averageColumns(copy, pixels, length, height, stride, radius);
    }
}

/// How the blur is split between reducing, averaging the reduced picture and enlarging it again.
struct Plan {
    int factor = 1;
    double reducedSigma = 0;
};

Plan planFor(double sigma)
{
    constexpr int largestFactor = 16;
    sigma = usableSigma(sigma);
    Plan plan{1, sigma};
    while (plan.factor < largestFactor && plan.factor * 2 * 3 <= sigma)
        plan.factor *= 2;
    // Reducing and enlarging blur a little by themselves.
    if (plan.factor > 1)
        plan.reducedSigma = std::sqrt(sigma * sigma - plan.factor * plan.factor / 4.0) / plan.factor;
    return plan;
}

template <int channels>
std::vector<std::uint8_t> reduced(const std::uint8_t* pixels, int width, int height, int stride, int factor)
{
    const int smallWidth = (width + factor - 1) / factor;
    const int smallHeight = (height + factor - 1) / factor;
    std::vector<std::uint8_t> small(static_cast<std::size_t>(smallWidth * smallHeight * channels));
    std::vector<int> sums(static_cast<std::size_t>(smallWidth * channels));
    std::uint8_t* to = small.data();
    for (int top = 0; top < height; top += factor) {
        const int rows = std::min(factor, height - top);
        std::fill(sums.begin(), sums.end(), 0);
        for (int y = top; y < top + rows; ++y) {
            const std::uint8_t* from = pixels + static_cast<std::ptrdiff_t>(y) * stride;
            int* sum = sums.data();
            for (int x = 0; x < width; sum += channels) {
                for (const int end = std::min(x + factor, width); x < end; ++x, from += channels) {
                    for (int channel = 0; channel < channels; ++channel)
                        sum[channel] += from[channel];
                }
            }
        }
        for (int i = 0; i < smallWidth * channels; ++i) {
            const int columns = std::min(factor, width - i / channels * factor);
            const int count = columns * rows;
            *to++ = static_cast<std::uint8_t>((sums[static_cast<std::size_t>(i)] + count / 2) / count);
        }
    }
    return small;
}

/// Where a pixel lies between the centres of two reduced ones; the weight is in parts of twice the factor.
struct Between {
    int first = 0;
    int second = 0;
    int weight = 0;
};

Between between(int position, int factor, int count)
{
    const int doubled = 2 * position + 1 - factor + 2 * factor;
    const int first = doubled / (2 * factor) - 1;
    return {std::max(first, 0), std::clamp(first + 1, 0, count - 1), doubled % (2 * factor)};
}

template <int channels>
void enlarge(
    const std::vector<std::uint8_t>& small, std::uint8_t* pixels, int width, int height, int stride, int factor)
{
    const int smallWidth = (width + factor - 1) / factor;
    const int smallHeight = (height + factor - 1) / factor;
    const int parts = 2 * factor;
    // The factor is a power of two, and so is what the sums are to be divided by.
    const int shift = 2 * (std::bit_width(static_cast<unsigned>(parts)) - 1);
    const int half = 1 << (shift - 1);
    std::vector<Between> columns;
    for (int x = 0; x < width; ++x)
        columns.push_back(between(x, factor, smallWidth));
    std::vector<int> blended(static_cast<std::size_t>(smallWidth * channels));
    for (int y = 0; y < height; ++y) {
        const Between row = between(y, factor, smallHeight);
        const std::uint8_t* first = small.data() + row.first * smallWidth * channels;
        const std::uint8_t* second = small.data() + row.second * smallWidth * channels;
        for (int i = 0; i < smallWidth * channels; ++i)
            blended[static_cast<std::size_t>(i)] = first[i] * (parts - row.weight) + second[i] * row.weight;
        std::uint8_t* to = pixels + static_cast<std::ptrdiff_t>(y) * stride;
        for (const Between& column : columns) {
            const int* left = blended.data() + column.first * channels;
            const int* right = blended.data() + column.second * channels;
            for (int channel = 0; channel < channels; ++channel)
                to[channel] = static_cast<std::uint8_t>(
                    (left[channel] * (parts - column.weight) + right[channel] * column.weight + half) >> shift);
            to += channels;
        }
    }
}

template <int channels>
void blurChannels(std::uint8_t* pixels, int width, int height, int stride, double sigma)
{
    const Plan plan = planFor(sigma);
    if (plan.factor == 1) {
        average<channels>(pixels, width, height, stride, sigma);
        return;
    }
    auto small = reduced<channels>(pixels, width, height, stride, plan.factor);
    const int smallWidth = (width + plan.factor - 1) / plan.factor;
    const int smallHeight = (height + plan.factor - 1) / plan.factor;
    average<channels>(small.data(), smallWidth, smallHeight, smallWidth * channels, plan.reducedSigma);
    enlarge<channels>(small, pixels, width, height, stride, plan.factor);
}

}

int blurExtent(double sigma)
{
    const Plan plan = planFor(sigma);
    int extent = plan.factor > 1 ? 2 : 0;
    for (const int radius : averageRadii(plan.reducedSigma))
        extent += radius;
    return extent * plan.factor;
}

void blur(std::uint8_t* pixels, int width, int height, int stride, BlurKind kind, double sigma)
{
    if (width <= 0 || height <= 0)
        return;
    if (kind == BlurKind::alpha)
        blurChannels<1>(pixels, width, height, stride, sigma);
    else
        blurChannels<4>(pixels, width, height, stride, sigma);
}

}
