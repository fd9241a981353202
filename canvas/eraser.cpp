#include "canvas/eraser.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"
#include "elements/geometry.h"

#include <QDebug>
#include <QUuid>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double kSampleSpacing = 5.0;
// A pointer that jumps further than any desktop is wide must not stall the interface: beyond
// this many samples they lie further apart.
constexpr double kMaxSampleSteps = 100000.0;
const QString kGroupPrefix = QStringLiteral("eraser_group_");

std::vector<QPoint> samplePath(const QPoint &from, const QPoint &to)
{
    const double dx = static_cast<double>(to.x()) - from.x();
    const double dy = static_cast<double>(to.y()) - from.y();
    const double distance = std::sqrt(std::pow(dx, 2.0) + std::pow(dy, 2.0));
    const int steps = geometry::rounded(
        std::min(std::max(1.0, std::round(distance / kSampleSpacing)), kMaxSampleSteps));
    std::vector<QPoint> samples;
    samples.reserve(static_cast<std::size_t>(steps) + 1);
    for (int i = 0; i <= steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        samples.emplace_back(
            geometry::truncated(from.x() + dx * part), geometry::truncated(from.y() + dy * part));
    }
    return samples;
}

} // namespace

void Eraser::beginGroup()
{
    qDebug() << CanvasLog::kEraseStarted;
    m_document.history.push(
        { HistoryEntry::EraserGroup, kGroupPrefix + QUuid::createUuid().toString() });
    m_document.history.clearRedo();
    m_document.reportBothStacks();
}

void Eraser::erase(const QPoint &previous, const QPoint &pos)
{
    const int tolerance = geometry::saturated(2LL * m_document.pen.size);
    const std::vector<QPoint> samples = samplePath(previous, pos);
    Damage damage;
    int lowest = m_document.elements.size();
    for (int i = m_document.elements.size() - 1; i >= 0; --i) {
        if (!m_document.elements.isValid(i))
            continue; // a listener told of the last one has changed the board
        const DrawingElement *element = m_document.elements.at(i);
        const bool touched = std::any_of(samples.begin(), samples.end(),
            [=](const QPoint &sample) { return element->contains(sample, tolerance); });
        if (!touched)
            continue;
        damage.add(*element);
        lowest = i;
        eraseElement(i);
    }
    m_document.events.contentChanged(damage, std::min(lowest, m_document.elements.size()));
}

void Eraser::eraseElement(int index)
{
    ElementPtr element = m_document.elements.take(index);
    const QString id = element->id;
    qDebug() << CanvasLog::kErased << id;
    if (HistoryEntry *known = m_document.history.findRemoval(id)) {
        qDebug() << CanvasLog::kEraseKnown;
        if (!known->element)
            known->element = std::move(element);
    } else {
        m_document.history.push({ HistoryEntry::Erase, id, std::move(element) });
        m_document.events.undoStackChanged();
    }
}

bool Eraser::deleteAt(const QPoint &pos, int tolerance)
{
    const int index = m_document.elements.topmostAt(pos, tolerance);
    if (index == ElementList::kNotFound)
        return false;
    Damage damage;
    damage.add(*m_document.elements.at(index));
    m_document.removeElement(index);
    m_document.history.clearRedo();
    m_document.reportBothStacks();
    m_document.events.contentChanged(damage, index);
    return true;
}
