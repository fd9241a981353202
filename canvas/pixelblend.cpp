#include "canvas/pixelblend.h"

#include <QImage>

#include <algorithm>

namespace
{

/// The four channels times a / 255, rounded.
QRgb scaled(QRgb pixel, uint a)
{
    const auto half = [a](uint channels) {
        const uint product = channels * a;
        return ((product + ((product >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
    };
    return half(pixel & 0xff00ff) | (half((pixel >> 8) & 0xff00ff) << 8);
}

} // namespace

const PixelBlend &PixelBlend::instance()
{
    static const PixelBlend blend;
    return blend;
}

PixelBlend::PixelBlend()
{
    QImage greys(256, 1, QImage::Format_ARGB32_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha) {
        auto *premultiplied = reinterpret_cast<QRgb *>(greys.scanLine(0));
        for (int i = 0; i < 256; ++i) {
            const int value = std::min(i, alpha);
            premultiplied[i] = qRgba(value, value, value, alpha);
        }
        const QImage converted = greys.convertToFormat(QImage::Format_ARGB32);
        const auto *plain = reinterpret_cast<const QRgb *>(converted.constScanLine(0));
        std::transform(plain, plain + 256, m_unpremultiplied[std::size_t(alpha)].begin(),
            [](QRgb pixel) { return uchar(qRed(pixel)); });
    }
}

void PixelBlend::cover(QRgb &pixel, QRgb ink, uchar coverage) const
{
    const QRgb source = coverage == 255 ? ink : scaled(ink, coverage);
    if (qAlpha(source) == 255) {
        pixel = source;
        return;
    }
    const QRgb mixed = source + scaled(qPremultiply(pixel), 255 - uint(qAlpha(source)));
    const auto &channels = m_unpremultiplied[std::size_t(qAlpha(mixed))];
    pixel = qRgba(channels[std::size_t(qRed(mixed))], channels[std::size_t(qGreen(mixed))],
        channels[std::size_t(qBlue(mixed))], qAlpha(mixed));
}
