.pragma library

// Where things go beside a selected region. Everything in the window's logical pixels.

const nearGap = 3;
const edgeGap = 5;
const cornerGap = 20;
const nearlyAll = 0.9;

function clamp(value, least, most) {
    return Math.max(least, Math.min(value, most));
}

function coversNearlyAll(region, area) {
    return region.width > nearlyAll * area.width && region.height > nearlyAll * area.height;
}

function corner(area, item) {
    return Qt.point(area.width - cornerGap - item.width, area.height - cornerGap - item.height);
}

/// Beside the region's right end: below it, above it, or where neither fits, inside it.
function beside(region, area, item) {
    if (coversNearlyAll(region, area))
        return corner(area, item);
    const below = region.y + region.height + nearGap;
    const above = region.y - nearGap - item.height;
    const x = clamp(region.x + region.width - item.width, edgeGap, area.width - edgeGap - item.width);
    if (below + item.height <= area.height)
        return Qt.point(x, below);
    if (above >= 0)
        return Qt.point(x, above);
    return Qt.point(x, area.height - edgeGap - item.height);
}

/// Like `beside`, but at the region's side rather than inside it; null where there is no room.
function outside(region, area, item) {
    const place = beside(region, area, item);
    const isInside = place.y < region.y + region.height && place.y + item.height > region.y
                     && place.x < region.x + region.width && place.x + item.width > region.x;
    if (!isInside)
        return place;
    const right = region.x + region.width + nearGap;
    const left = region.x - nearGap - item.width;
    const y = clamp(region.y + region.height - item.height, edgeGap, area.height - edgeGap - item.height);
    if (right + item.width <= area.width)
        return Qt.point(right, y);
    return left >= 0 ? Qt.point(left, y) : null;
}
