// Curves as steps of a pen: a canvas' path, or something that measures. All is reckoned in doubles, from drawing units
// into pixels, and what is far beyond the window is cut off, since a canvas has single precision.

'use strict';

const farthestPixel = 16000;
const flatness = 0.2; // pixels between a curve and its chords, where it is cut
const deepestCut = 48;

// From a space into pixels: X = a (x - x0) + c (y - y0) + e, Y = b (x - x0) + d (y - y0) + f.
class Mapping {
    constructor(a, b, c, d, x0 = 0, y0 = 0, e = 0, f = 0) {
        Object.assign(this, {a, b, c, d, x0, y0, e, f});
    }

    // Of a view, which has the point at its upper left and pixels a unit.
    static ofView(view) {
        return new Mapping(view.scale, 0, 0, -view.scale, view.x, view.y);
    }

    x(x, y) {
        return this.a * (x - this.x0) + this.c * (y - this.y0) + this.e;
    }

    y(x, y) {
        return this.b * (x - this.x0) + this.d * (y - this.y0) + this.f;
    }

    // From the space that six numbers of a reference put into this one.
    referred(numbers, first) {
        const [a, b, c, d, e, f] = numbers.subarray(first, first + 6);
        return new Mapping(this.a * a + this.c * b, this.b * a + this.d * b, this.a * c + this.c * d,
            this.b * c + this.d * d, 0, 0, this.x(e, f), this.y(e, f));
    }

    // Pixels a unit, in the direction in which they are most.
    get scale() {
        return Math.max(Math.hypot(this.a, this.b), Math.hypot(this.c, this.d));
    }

    addBox(into, left, bottom, right, top) {
        into.add(this.x(left, bottom), this.y(left, bottom));
        into.add(this.x(right, bottom), this.y(right, bottom));
        into.add(this.x(left, top), this.y(left, top));
        into.add(this.x(right, top), this.y(right, top));
    }
}

// The share of a line from one point to another that is within a window, into `part`; false when there is none. `low`
// and `high` are the shares where it ends, infinite for one without ends.
function clipLine(window, x, y, dx, dy, low, high, part) {
    for (let side = 0; side < 4; side++) {
        const along = side < 2 ? dx : dy;
        const to = side === 0 ? window.left - x : side === 1 ? window.right - x
            : side === 2 ? window.bottom - y : window.top - y;
        const inwards = side % 2 === 0;
        if (along === 0) {
            if (inwards ? to > 0 : to < 0) {
                return false;
            }
        } else if (inwards === along > 0) {
            low = Math.max(low, to / along);
        } else {
            high = Math.min(high, to / along);
        }
    }
    part.low = low;
    part.high = high;
    return low <= high;
}

// Takes lines and gives a pen what is within the window.
class ClippedPen {
    constructor(pen, window) {
        this.pen = pen;
        this.window = window;
        this.part = {low: 0, high: 0};
        this.endX = NaN;
        this.endY = NaN;
    }

    moveTo(x, y) {
        this.x = x;
        this.y = y;
    }

    lineTo(x, y) {
        const dx = x - this.x;
        const dy = y - this.y;
        if (clipLine(this.window, this.x, this.y, dx, dy, 0, 1, this.part)) {
            const {low, high} = this.part;
            if (low > 0 || this.x !== this.endX || this.y !== this.endY) {
                this.pen.moveTo(this.x + low * dx, this.y + low * dy);
            }
            this.pen.lineTo(high < 1 ? this.x + high * dx : x, high < 1 ? this.y + high * dy : y);
            this.endX = high < 1 ? NaN : x;
            this.endY = y;
        }
        this.x = x;
        this.y = y;
    }
}

// Takes the loops of a boundary and gives a pen their parts within the window, closed along its edges.
class ClippedLoops {
    constructor(pen, window) {
        this.pen = pen;
        this.window = window;
        this.points = [];
    }

    moveTo(x, y) {
        this.end();
        this.points.push([x, y]);
    }

    lineTo(x, y) {
        this.points.push([x, y]);
    }

    end() {
        const {left, bottom, right, top} = this.window;
        const points = [[0, left, 1], [0, right, -1], [1, bottom, 1], [1, top, -1]].reduce(beyondEdge, this.points);
        points.forEach(([x, y], i) => i ? this.pen.lineTo(x, y) : this.pen.moveTo(x, y));
        if (points.length) {
            this.pen.closePath();
        }
        this.points = [];
    }
}

// The part of a polygon on one side of a limit of a coordinate.
function beyondEdge(points, [axis, limit, sign]) {
    const kept = [];
    points.forEach((point, i) => {
        const before = points[i ? i - 1 : points.length - 1];
        const isIn = (point[axis] - limit) * sign >= 0;
        if (isIn !== ((before[axis] - limit) * sign >= 0)) {
            const share = (limit - before[axis]) / (point[axis] - before[axis]);
            const crossing = [before[0] + share * (point[0] - before[0]), before[1] + share * (point[1] - before[1])];
            crossing[axis] = limit;
            kept.push(crossing);
        }
        if (isIn) {
            kept.push(point);
        }
    });
    return kept;
}

function meetsBox(box, window) {
    return box.left <= window.right && box.right >= window.left && box.bottom <= window.top && box.top >= window.bottom;
}

// Chords of an arc of an ellipse: fine ones within the window, and few beyond it, which stay beyond it.
function flattenEllipse(pen, window, arc, start, sweep, depth = 0) {
    const {x, y, ux, uy, vx, vy} = arc;
    if (depth < deepestCut) {
        const size = Math.max(Math.hypot(ux, uy), Math.hypot(vx, vy));
        const isFlat = Math.abs(sweep) < 3 && size * (1 - Math.cos(sweep / 2)) <= flatness;
        const box = isFlat ? null : new Box();
        if (box) {
            box.addEllipse(x, y, ux, uy, vx, vy, start, sweep);
        }
        if (box && meetsBox(box, window)) {
            flattenEllipse(pen, window, arc, start, sweep / 2, depth + 1);
            flattenEllipse(pen, window, arc, start + sweep / 2, sweep / 2, depth + 1);
            return;
        }
    }
    const end = start + sweep;
    pen.lineTo(x + ux * Math.cos(end) + vx * Math.sin(end), y + uy * Math.cos(end) + vy * Math.sin(end));
}

function flattenBezier(pen, window, points, depth = 0) {
    const [x0, y0, x1, y1, x2, y2, x3, y3] = points;
    const isFlat = Math.abs(x0 - 2 * x1 + x2) + Math.abs(x1 - 2 * x2 + x3) + Math.abs(y0 - 2 * y1 + y2) +
        Math.abs(y1 - 2 * y2 + y3) <= flatness;
    const isBeyond = Math.max(x0, x1, x2, x3) < window.left || Math.min(x0, x1, x2, x3) > window.right ||
        Math.max(y0, y1, y2, y3) < window.bottom || Math.min(y0, y1, y2, y3) > window.top;
    if (isFlat || isBeyond || depth >= deepestCut) {
        pen.lineTo(x3, y3);
        return;
    }
    const middle = (a, b) => (a + b) / 2;
    const [ax, ay, bx, by, cx, cy] = [middle(x0, x1), middle(y0, y1), middle(x1, x2), middle(y1, y2), middle(x2, x3),
        middle(y2, y3)];
    const [dx, dy, ex, ey] = [middle(ax, bx), middle(ay, by), middle(bx, cx), middle(by, cy)];
    const [mx, my] = [middle(dx, ex), middle(dy, ey)];
    flattenBezier(pen, window, [x0, y0, ax, ay, dx, dy, mx, my], depth + 1);
    flattenBezier(pen, window, [mx, my, ex, ey, cx, cy, x3, y3], depth + 1);
}

// Gives a canvas' path the arc by its own step. Axes that are not at right angles, which a slanted reference makes,
// become the ones of the same ellipse that are.
function penEllipse(pen, arc, start, sweep) {
    let {ux, uy, vx, vy} = arc;
    const skew = ux * vx + uy * vy;
    if (Math.abs(skew) > 1e-12 * (ux * ux + uy * uy + vx * vx + vy * vy)) {
        const turned = Math.atan2(2 * skew, ux * ux + uy * uy - vx * vx - vy * vy) / 2;
        const [cosine, sine] = [Math.cos(turned), Math.sin(turned)];
        [ux, uy, vx, vy] = [ux * cosine + vx * sine, uy * cosine + vy * sine, vx * cosine - ux * sine,
            vy * cosine - uy * sine];
        start -= turned;
    }
    const [one, other] = [Math.hypot(ux, uy), Math.hypot(vx, vy)];
    const angle = Math.atan2(uy, ux);
    const sign = ux * vy - uy * vx < 0 ? -1 : 1;
    if (Math.abs(one - other) <= 1e-9 * one) {
        pen.arc(arc.x, arc.y, one, angle + sign * start, angle + sign * (start + sweep), sign * sweep < 0);
    } else {
        pen.ellipse(arc.x, arc.y, one, other, angle, sign * start, sign * (start + sweep), sign * sweep < 0);
    }
}

// Draws curves with a pen. `window` is in pixels; `isFlat` asks for lines only, which what measures needs.
class Tracer {
    constructor(pen, mapping, window, isFlat) {
        this.pen = pen;
        this.mapping = mapping;
        this.window = window;
        this.isFlat = isFlat;
        this.arc = {x: 0, y: 0, ux: 0, uy: 0, vx: 0, vy: 0};
    }

    moveTo(x, y) {
        this.begin(this.mapping.x(x, y), this.mapping.y(x, y));
    }

    begin(x, y) {
        this.x = this.startX = x;
        this.y = this.startY = y;
        this.pen.moveTo(x, y);
    }

    lineTo(x, y) {
        this.x = this.mapping.x(x, y);
        this.y = this.mapping.y(x, y);
        this.pen.lineTo(this.x, this.y);
    }

    ellipse(x, y, ux, uy, vx, vy, start, sweep, isFirst) {
        const {a, b, c, d} = this.mapping;
        const arc = this.arc;
        arc.x = this.mapping.x(x, y);
        arc.y = this.mapping.y(x, y);
        arc.ux = a * ux + c * uy;
        arc.uy = b * ux + d * uy;
        arc.vx = a * vx + c * vy;
        arc.vy = b * vx + d * vy;
        if (isFirst) {
            this.begin(arc.x + arc.ux * Math.cos(start) + arc.vx * Math.sin(start),
                arc.y + arc.uy * Math.cos(start) + arc.vy * Math.sin(start));
        }
        if (this.isFlat) {
            flattenEllipse(this.pen, this.window, arc, start, sweep);
        } else {
            penEllipse(this.pen, arc, start, sweep);
        }
        const end = start + sweep;
        this.x = arc.x + arc.ux * Math.cos(end) + arc.vx * Math.sin(end);
        this.y = arc.y + arc.uy * Math.cos(end) + arc.vy * Math.sin(end);
    }

    bezierTo(numbers, at) {
        const points = [this.x, this.y];
        for (let i = at; i < at + 6; i += 2) {
            points.push(this.mapping.x(numbers[i], numbers[i + 1]), this.mapping.y(numbers[i], numbers[i + 1]));
        }
        if (this.isFlat) {
            flattenBezier(this.pen, this.window, points);
        } else {
            this.pen.bezierCurveTo(...points.slice(2));
        }
        this.x = points[6];
        this.y = points[7];
    }

    outline(numbers, first, end) {
        let isFirst = true; // of a loop
        for (let i = first; i < end; i += stepLengths[numbers[i]]) {
            switch (numbers[i]) {
            case PathSteps.move:
                this.moveTo(numbers[i + 1], numbers[i + 2]);
                break;
            case PathSteps.line:
                this.lineTo(numbers[i + 1], numbers[i + 2]);
                break;
            case PathSteps.arc:
                this.ellipse(numbers[i + 1], numbers[i + 2], numbers[i + 3], 0, 0, numbers[i + 3], numbers[i + 4],
                    numbers[i + 5], isFirst);
                break;
            case PathSteps.ellipse:
                this.ellipse(numbers[i + 1], numbers[i + 2], numbers[i + 3], numbers[i + 4], numbers[i + 5],
                    numbers[i + 6], numbers[i + 7], numbers[i + 8], isFirst);
                break;
            case PathSteps.bezier:
                this.bezierTo(numbers, i + 1);
                break;
            default:
                if (this.isFlat) {
                    this.pen.lineTo(this.startX, this.startY);
                } else {
                    this.pen.closePath();
                }
                [this.x, this.y] = [this.startX, this.startY];
            }
            isFirst = numbers[i] === PathSteps.close;
        }
    }

    // The curves of a primitive: lines, arcs and outlines; the boundary of what is filled.
    primitive(geometry, p) {
        const numbers = geometry.numbers;
        const first = geometry.first[p];
        switch (geometry.shape[p]) {
        case Shapes.line:
            this.moveTo(numbers[first], numbers[first + 1]);
            this.lineTo(numbers[first + 2], numbers[first + 3]);
            break;
        case Shapes.arc:
            this.ellipse(numbers[first], numbers[first + 1], numbers[first + 2], 0, 0, numbers[first + 2],
                numbers[first + 3], numbers[first + 4], true);
            break;
        case Shapes.path:
        case Shapes.area:
            this.outline(numbers, first, geometry.first[p + 1]);
            break;
        case Shapes.pattern:
            this.outline(numbers, startOfBoundary(numbers, first), geometry.first[p + 1]);
            break;
        default:
        }
    }
}

// Lines without an end, or two, as far as the window.
function traceEndless(pen, mapping, window, geometry, p) {
    const numbers = geometry.numbers;
    const first = geometry.first[p];
    const x = mapping.x(numbers[first], numbers[first + 1]);
    const y = mapping.y(numbers[first], numbers[first + 1]);
    const dx = mapping.x(numbers[first + 2], numbers[first + 3]) - x;
    const dy = mapping.y(numbers[first + 2], numbers[first + 3]) - y;
    const part = {low: 0, high: 0};
    const low = geometry.shape[p] === Shapes.ray ? 0 : -Infinity;
    if ((dx || dy) && clipLine(window, x, y, dx, dy, low, Infinity, part)) {
        pen.moveTo(x + part.low * dx, y + part.low * dy);
        pen.lineTo(x + part.high * dx, y + part.high * dy);
    }
}

// Whether what has the box, in pixels, is too large for a canvas' own steps.
function isFar(box) {
    return box.left < -farthestPixel || box.bottom < -farthestPixel || box.right > farthestPixel ||
        box.top > farthestPixel;
}

// Gives a canvas' path the curves of a primitive, whole or cut off at the window.
function traceCurves(pen, mapping, window, geometry, p, box) {
    if (!isFar(box)) {
        new Tracer(pen, mapping, window, false).primitive(geometry, p);
        return;
    }
    const isFilled = geometry.shape[p] === Shapes.area || geometry.shape[p] === Shapes.pattern;
    const cut = isFilled ? new ClippedLoops(pen, window) : new ClippedPen(pen, window);
    new Tracer(cut, mapping, window, true).primitive(geometry, p);
    if (isFilled) {
        cut.end();
    }
}

function traceRectangle(pen, mapping, [left, bottom, right, top]) {
    traceLoop(pen, mapping, [[left, bottom], [right, bottom], [right, top], [left, top]]);
}

function traceLoop(pen, mapping, points) {
    [...points, points[0]].forEach(([x, y], i) => {
        if (i) {
            pen.lineTo(mapping.x(x, y), mapping.y(x, y));
        } else {
            pen.moveTo(mapping.x(x, y), mapping.y(x, y));
        }
    });
}

// The frame in which a text is thought to stand.
function traceText(pen, mapping, numbers, first, text) {
    const {left, width, height, baseline} = placeOfText(numbers, first, text);
    const cosine = Math.cos(numbers[first + 3]);
    const sine = Math.sin(numbers[first + 3]);
    const low = baseline - descentShare * height;
    const high = baseline + height;
    traceLoop(pen, mapping, [[left, low], [left + width, low], [left + width, high], [left, high]].map(
        ([x, y]) => [numbers[first] + x * cosine - y * sine, numbers[first + 1] + x * sine + y * cosine]));
}

// The cross of a point, in pixels to each side.
function tracePoint(pen, mapping, numbers, first, reach) {
    const x = mapping.x(numbers[first], numbers[first + 1]);
    const y = mapping.y(numbers[first], numbers[first + 1]);
    pen.moveTo(x - reach, y);
    pen.lineTo(x + reach, y);
    pen.moveTo(x, y - reach);
    pen.lineTo(x, y + reach);
}
