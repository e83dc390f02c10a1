// Scales a picture while its rows arrive: reduces by averaging areas, enlarges by blending neighbours.
#pragma once

#include "Simulator/Graphics/ImageSource.hpp"

#include <deque>
#include <vector>

namespace Simulator::Graphics {

class Resampler : public RowReceiver {
public:
    /// Produces the window of the full size into the pixels, which have the window's size.
    Resampler(PixelSize full, const PixelRect& window, Pixels& out);

    bool begin(PixelSize size, Size exact) override;
    void row(const std::uint8_t* pixels) override;

private:
    /// The source pixels that make up one pixel of the result.
    struct Contribution {
        int first = 0;
        std::vector<float> weights;
        int end() const { return first + static_cast<int>(weights.size()); }
    };
    using Contributions = std::vector<Contribution>;

    static Contributions contributions(int sourceCount, double exactSource, int full, int start, int count);
    void copyRow(const std::uint8_t* pixels);
    void reduceRow(const std::uint8_t* pixels);
    void finishFirst();

    PixelSize m_full;
    PixelRect m_window;
    Pixels& m_out;
    PixelSize m_source;
    bool m_isCopy = false;
    int m_sourceRow = 0;
    /// The first row of the result that is not finished, and the sums of those begun.
    int m_outRow = 0;
    std::deque<std::vector<float>> m_sums;
    Contributions m_columns;
    Contributions m_rows;
    std::vector<float> m_reduced;
};

}
