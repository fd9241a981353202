#pragma once

#include <QRgb>

#include <array>

/// Blends a colour into pixels of a `QImage::Format_ARGB32` picture, bit for bit as QPainter does
/// when it fills an antialiased shape.
class PixelBlend
{
public:
    static const PixelBlend &instance();

    /// Covers `pixel` so much, from 1 to 255, with `ink`, which is premultiplied.
    void cover(QRgb &pixel, QRgb ink, uchar coverage) const;

private:
    PixelBlend();

    /// By alpha and premultiplied channel. How Qt rounds here differs from processor to processor,
    /// and from qUnpremultiply(), so it is asked once.
    std::array<std::array<uchar, 256>, 256> m_unpremultiplied;
};
