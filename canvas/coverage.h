#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <cstddef>
#include <vector>

/// How much of each pixel a shape covers. Coordinates are device pixels of the picture.
class Coverage
{
public:
    Coverage() = default;
    /// Takes it from the alpha of a premultiplied picture whose top left corner is at `origin`.
    Coverage(const QImage &shape, const QPoint &origin);

    /// Fills the shape inside `clip` as QPainter fills it antialiased, bit for bit. The picture is
    /// of `Format_ARGB32` and holds `clip`; `ink` is premultiplied.
    void fill(QImage &picture, const QRect &clip, QRgb ink) const;
    [[nodiscard]] std::size_t bytes() const;

private:
    /// Neighbouring pixels that are covered.
    struct Run {
        quint16 x;
        quint16 length;
    };
    struct Row {
        quint32 firstRun;
        quint32 firstValue;
    };

    void addRow(const QRgb *pixels, int width);

    QPoint m_origin;
    std::vector<Row> m_rows; ///< and one behind the last
    std::vector<Run> m_runs;
    std::vector<uchar> m_values; ///< 1 to 255, of the pixels of all runs
};
