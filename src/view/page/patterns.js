// Families of parallel lines, which fill a pattern's boundary.

'use strict';

// How the lines of a family lie: their direction for a drawing unit, and the step from one to the next.
function familyOf(mapping, numbers, at) {
    const [angle, x, y, distance, count] = numbers.subarray(at, at + 5);
    const [cosine, sine] = [Math.cos(angle), Math.sin(angle)];
    const family = {x: mapping.x(x, y), y: mapping.y(x, y),
        dx: mapping.a * cosine + mapping.c * sine, dy: mapping.b * cosine + mapping.d * sine,
        stepX: distance * (mapping.c * cosine - mapping.a * sine),
        stepY: distance * (mapping.d * cosine - mapping.b * sine),
        dashes: numbers.subarray(at + 5, at + 5 + count), end: at + 5 + count};
    family.unit = Math.hypot(family.dx, family.dy);
    family.gap = Math.abs(family.dx * family.stepY - family.dy * family.stepX) / family.unit;
    return family;
}

function familiesOf(mapping, numbers, first) {
    const families = [];
    let at = first + 1;
    for (let n = numbers[first]; n > 0; n--) {
        families.push(familyOf(mapping, numbers, at));
        at = families[families.length - 1].end;
    }
    return families;
}

// Calls back with both ends of each line of a family that meets a window. Dashes begin at a multiple of their period.
function linesOfFamily(family, window, draw) {
    const {x, y, dx, dy, stepX, stepY} = family;
    const across = dx * stepY - dy * stepX;
    const numbers = [[window.left, window.bottom], [window.right, window.bottom], [window.left, window.top],
        [window.right, window.top]].map(corner => (dx * (corner[1] - y) - dy * (corner[0] - x)) / across);
    const period = family.dashes.reduce((sum, dash) => sum + Math.abs(dash), 0);
    const part = {low: 0, high: 0};
    for (let n = Math.ceil(Math.min(...numbers)); n <= Math.max(...numbers); n++) {
        const [fromX, fromY] = [x + n * stepX, y + n * stepY];
        if (clipLine(window, fromX, fromY, dx, dy, -Infinity, Infinity, part)) {
            const low = period ? Math.floor(part.low / period) * period : part.low;
            draw(fromX + low * dx, fromY + low * dy, fromX + part.high * dx, fromY + part.high * dy);
        }
    }
}

// The dashes of a canvas, which are marks and gaps by turns; a point is as long as a pixel.
function dashesOf(dashes, unit) {
    const lengths = [];
    dashes.forEach(dash => {
        const isMark = dash >= 0;
        const length = Math.max(Math.abs(dash) * unit, isMark ? 1 : 0);
        if (isMark === (lengths.length % 2 === 0)) {
            lengths.push(length);
        } else if (lengths.length) {
            lengths[lengths.length - 1] += length;
        } else {
            lengths.push(0, length);
        }
    });
    return lengths.length % 2 ? lengths.concat(0) : lengths;
}
