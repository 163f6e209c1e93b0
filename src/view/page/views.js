// Views of a space: the point at the upper left of the canvas in drawing units, and how many of its pixels a unit has.

'use strict';

const leastScale = 1e-150; // whose square is still a number
const mostScale = 1e12;
const fitMargin = 0.06; // of the canvas, at each side

function fittingView(box, width, height) {
    const wide = box.right - box.left;
    const high = box.top - box.bottom;
    const room = 1 - 2 * fitMargin;
    const wanted = Math.min(width * room / wide, height * room / high);
    // A single point is shown as if it were as large as a page of its coordinates' size.
    const scale = limitedScale(isFinite(wanted) ? wanted : Math.min(width, height) / 100);
    return {x: box.left / 2 + box.right / 2 - width / 2 / scale, y: box.bottom / 2 + box.top / 2 + height / 2 / scale,
        scale: scale};
}

function limitedScale(scale) {
    return Math.min(mostScale, Math.max(leastScale, scale));
}

function movedView(view, dx, dy) {
    return {x: view.x - dx / view.scale, y: view.y + dy / view.scale, scale: view.scale};
}

// What lies at a pixel stays there.
function zoomedView(view, factor, x, y) {
    const scale = limitedScale(view.scale * factor);
    return {x: view.x + x / view.scale - x / scale, y: view.y - y / view.scale + y / scale, scale: scale};
}

// The same middle and the same unit in a canvas of another size.
function resizedView(view, width, height, newWidth, newHeight, factor) {
    const scale = view.scale * factor;
    return {x: view.x + width / 2 / view.scale - newWidth / 2 / scale,
        y: view.y - height / 2 / view.scale + newHeight / 2 / scale, scale: scale};
}

// Whether a picture of one view, of a size, shows all of another's.
function coversView(kept, keptWidth, keptHeight, view, width, height) {
    const half = 0.5 / view.scale;
    return view.x >= kept.x - half && view.y <= kept.y + half &&
        view.x + width / view.scale <= kept.x + keptWidth / kept.scale + half &&
        view.y - height / view.scale >= kept.y - keptHeight / kept.scale - half;
}
