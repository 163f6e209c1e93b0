// Curves, and which of them a window meets. Points are three coordinates, a window is two of its corners; what lies on
// the window's edge is within.

'use strict';

const windowEdge = 1e-9; // drawing units

function boundsOf(one, other) {
    return one.map((value, axis) => [Math.min(value, other[axis]) - windowEdge,
                                     Math.max(value, other[axis]) + windowEdge]);
}

// Whether a segment has a point within: its part that is within the bounds of one axis after the other.
function meetsSegment(start, end, bounds) {
    let from = 0;
    let to = 1;
    return bounds.every(([low, high], axis) => {
        const step = end[axis] - start[axis];
        if (step === 0) {
            return start[axis] >= low && start[axis] <= high;
        }
        const ends = [(low - start[axis]) / step, (high - start[axis]) / step];
        from = Math.max(from, Math.min(...ends));
        to = Math.min(to, Math.max(...ends));
        return from <= to;
    });
}

// Where along an arc a coordinate may pass a limit: `mean + reach * cos(angle - phase)` equals it.
function passings(mean, cosine, sine, limit) {
    const reach = Math.hypot(cosine, sine);
    const share = (limit - mean) / reach;
    if (!(Math.abs(share) <= 1)) {
        return [];
    }
    const phase = Math.atan2(sine, cosine);
    return [phase + Math.acos(share), phase - Math.acos(share)];
}

// Whether an arc of an ellipse, whose axes are vectors, has a point within. Between two of the angles where a coordinate
// passes a limit nothing changes, so these and the middles between them tell.
function meetsEllipse(arc, bounds) {
    const turn = 2 * Math.PI;
    const span = arc.end > arc.start ? Math.min(arc.end - arc.start, turn) : arc.end - arc.start + turn;
    const at = angle => arc.center.map((mean, axis) =>
        mean + arc.major[axis] * Math.cos(angle) + arc.minor[axis] * Math.sin(angle));
    const angles = [0, span];
    bounds.forEach((limits, axis) => limits.forEach(limit => {
        for (const angle of passings(arc.center[axis], arc.major[axis], arc.minor[axis], limit)) {
            const behind = angle - arc.start - Math.floor((angle - arc.start) / turn) * turn;
            if (behind < span) {
                angles.push(behind);
            }
        }
    }));
    angles.sort((a, b) => a - b);
    const tried = angles.concat(angles.slice(1).map((angle, i) => (angle + angles[i]) / 2));
    return tried.some(angle => at(arc.start + angle).every((value, axis) =>
        value >= bounds[axis][0] && value <= bounds[axis][1]));
}

// A curve is a chain of `vertices`, or an arc with `center`, `major`, `minor`, `start` and `end` (radians; the same end
// as start is a whole turn).
function meetsWindow(curve, one, other) {
    const bounds = boundsOf(one, other);
    if (!curve.vertices) {
        return meetsEllipse(curve, bounds);
    }
    return curve.vertices.some((vertex, i) => i > 0 && meetsSegment(curve.vertices[i - 1], vertex, bounds));
}
