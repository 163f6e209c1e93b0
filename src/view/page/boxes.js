// What primitives are made of, and the boxes around them. All is in drawing units and radians; a box is left, bottom,
// right and top, and one that is empty has its left right of its right.

'use strict';

// The numbers of a primitive's shape, and of the steps of an outline.
const Shapes = Object.freeze({line: 0, arc: 1, path: 2, area: 3, text: 4, point: 5, ray: 6, xline: 7, reference: 8,
    pattern: 9, window: 10});
const PathSteps = Object.freeze({move: 0, line: 1, arc: 2, ellipse: 3, bezier: 4, close: 5});
const stepLengths = [3, 3, 6, 9, 7, 1]; // of the steps of an outline with their own number, in numbers
const wholeTurn = 2 * Math.PI;
const deepestNesting = 16;

// Letters are estimated, since nobody knows the font; as shares of the height of capitals.
const letterShare = 0.8;
const descentShare = 0.35;
const risingShare = 0.15; // of accents, above capitals

class Box {
    constructor() {
        this.clear();
    }

    clear() {
        this.left = Infinity;
        this.bottom = Infinity;
        this.right = -Infinity;
        this.top = -Infinity;
        return this;
    }

    get isEmpty() {
        return !(this.left <= this.right);
    }

    add(x, y) {
        this.left = Math.min(this.left, x);
        this.bottom = Math.min(this.bottom, y);
        this.right = Math.max(this.right, x);
        this.top = Math.max(this.top, y);
    }

    addStored(boxes, n) {
        if (boxes[4 * n] <= boxes[4 * n + 2]) {
            this.add(boxes[4 * n], boxes[4 * n + 1]);
            this.add(boxes[4 * n + 2], boxes[4 * n + 3]);
        }
    }

    store(boxes, n) {
        boxes[4 * n] = this.left;
        boxes[4 * n + 1] = this.bottom;
        boxes[4 * n + 2] = this.right;
        boxes[4 * n + 3] = this.top;
    }

    addEllipse(x, y, ux, uy, vx, vy, start, sweep) {
        const at = angle => this.add(x + ux * Math.cos(angle) + vx * Math.sin(angle),
            y + uy * Math.cos(angle) + vy * Math.sin(angle));
        at(start);
        at(start + sweep);
        for (const extreme of [Math.atan2(vx, ux), Math.atan2(vy, uy)]) {
            for (const angle of [extreme, extreme + Math.PI]) {
                if (isWithinSweep(angle, start, sweep)) {
                    at(angle);
                }
            }
        }
    }

    addBezier(x0, y0, x1, y1, x2, y2, x3, y3) {
        this.add(x0, y0);
        this.add(x3, y3);
        for (const t of bezierExtremes(x0, x1, x2, x3).concat(bezierExtremes(y0, y1, y2, y3))) {
            this.add(bezierAt(t, x0, x1, x2, x3), bezierAt(t, y0, y1, y2, y3));
        }
    }

    addOutline(numbers, first, end) {
        let x = 0;
        let y = 0;
        for (let i = first; i < end; i += stepLengths[numbers[i]]) {
            const kind = numbers[i];
            if (kind === PathSteps.arc) {
                const [radius, start, sweep] = [numbers[i + 3], numbers[i + 4], numbers[i + 5]];
                this.addEllipse(numbers[i + 1], numbers[i + 2], radius, 0, 0, radius, start, sweep);
                x = numbers[i + 1] + radius * Math.cos(start + sweep);
                y = numbers[i + 2] + radius * Math.sin(start + sweep);
            } else if (kind === PathSteps.ellipse) {
                const [cx, cy, ux, uy, vx, vy, start, sweep] = numbers.subarray(i + 1, i + 9);
                this.addEllipse(cx, cy, ux, uy, vx, vy, start, sweep);
                x = cx + ux * Math.cos(start + sweep) + vx * Math.sin(start + sweep);
                y = cy + uy * Math.cos(start + sweep) + vy * Math.sin(start + sweep);
            } else if (kind !== PathSteps.close) {
                const last = i + stepLengths[kind] - 2;
                if (kind === PathSteps.bezier) {
                    this.addBezier(x, y, ...numbers.subarray(i + 1, i + 7));
                } else {
                    this.add(numbers[last], numbers[last + 1]);
                }
                x = numbers[last];
                y = numbers[last + 1];
            }
        }
    }

    addText(numbers, first, text) {
        const place = placeOfText(numbers, first, text);
        const cosine = Math.cos(numbers[first + 3]);
        const sine = Math.sin(numbers[first + 3]);
        for (const x of [place.left, place.left + place.width]) {
            for (const y of [place.baseline - descentShare * place.height,
                             place.baseline + (1 + risingShare) * place.height]) {
                this.add(numbers[first] + x * cosine - y * sine, numbers[first + 1] + x * sine + y * cosine);
            }
        }
    }

    // The corners of a box in a definition, where the matrix puts them.
    addReferred(box, numbers, first) {
        if (box.isEmpty) {
            return;
        }
        for (const x of [box.left, box.right]) {
            for (const y of [box.bottom, box.top]) {
                this.add(numbers[first] * x + numbers[first + 2] * y + numbers[first + 4],
                    numbers[first + 1] * x + numbers[first + 3] * y + numbers[first + 5]);
            }
        }
    }
}

function isWithinSweep(angle, start, sweep) {
    const behind = sweep < 0 ? start - angle : angle - start;
    return behind - Math.floor(behind / wholeTurn) * wholeTurn <= Math.abs(sweep);
}

function bezierAt(t, p0, p1, p2, p3) {
    const s = 1 - t;
    return s * s * s * p0 + 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t * p3;
}

// Where a coordinate of a cubic curve turns, between its ends.
function bezierExtremes(p0, p1, p2, p3) {
    const a = p3 - 3 * p2 + 3 * p1 - p0;
    const b = p2 - 2 * p1 + p0; // half of the middle coefficient
    const c = p1 - p0;
    const root = Math.sqrt(b * b - a * c);
    // The second form of each root is exact where the first cancels, and holds for a curve that is quadratic.
    const q = -(b + (b < 0 ? -root : root));
    return [q / a, c / q].filter(t => t > 0 && t < 1);
}

// Where the letters of a text lie, as if its angle were 0 and its point the origin.
function placeOfText(numbers, first, text) {
    const height = numbers[first + 2];
    const place = numbers[first + 5];
    const width = numbers[first + 4] || letterShare * height * text.length;
    const column = place >= 10 ? place - 10 : (place - 1) % 3;
    const row = place >= 10 ? 3 : Math.floor((place - 1) / 3);
    return {left: -width * column / 2, width: width, height: height, column: column,
        baseline: [-height, -height / 2, 0, 0][row]};
}

// The number at which the steps of a pattern's boundary begin, behind its families of lines.
function startOfBoundary(numbers, first) {
    let at = first + 1;
    for (let i = 0; i < numbers[first]; i++) {
        at += 5 + numbers[at + 4];
    }
    return at;
}

function isEndless(shape) {
    return shape === Shapes.ray || shape === Shapes.xline;
}

// Numbers by a key that each has, in their order: those of key k are members[first[k]] to members[first[k + 1] - 1].
class Members {
    constructor(keys, keyCount) {
        this.first = new Int32Array(keyCount + 1);
        this.members = new Int32Array(keys.length);
        for (let i = 0; i < keys.length; i++) {
            this.first[keys[i] + 1]++;
        }
        for (let key = 0; key < keyCount; key++) {
            this.first[key + 1] += this.first[key];
        }
        const next = this.first.slice();
        for (let i = 0; i < keys.length; i++) {
            this.members[next[keys[i]]++] = i;
        }
    }

    of(key) {
        return this.members.subarray(this.first[key], this.first[key + 1]);
    }
}

// Around what a primitive draws, but references, which need their definitions; nothing for one without ends.
function addPrimitive(box, geometry, p, textOf) {
    const numbers = geometry.numbers;
    const first = geometry.first[p];
    switch (geometry.shape[p]) {
    case Shapes.line:
        box.add(numbers[first], numbers[first + 1]);
        box.add(numbers[first + 2], numbers[first + 3]);
        break;
    case Shapes.arc:
        box.addEllipse(numbers[first], numbers[first + 1], numbers[first + 2], 0, 0, numbers[first + 2],
            numbers[first + 3], numbers[first + 4]);
        break;
    case Shapes.path:
    case Shapes.area:
        box.addOutline(numbers, first, geometry.first[p + 1]);
        break;
    case Shapes.pattern:
        box.addOutline(numbers, startOfBoundary(numbers, first), geometry.first[p + 1]);
        break;
    case Shapes.text:
        box.addText(numbers, first, textOf(numbers[first + 6]));
        break;
    case Shapes.point:
        box.add(numbers[first], numbers[first + 1]);
        break;
    case Shapes.window:
        box.add(numbers[first], numbers[first + 1]);
        box.add(numbers[first] + numbers[first + 2], numbers[first + 1] + numbers[first + 3]);
        break;
    default:
    }
}

// Four numbers a primitive. What refers to itself, directly or by others, has no box for that part.
function boxesOf(geometry, members, spaceCount, textOf) {
    const boxes = new Float64Array(4 * geometry.count);
    const box = new Box();
    for (let p = 0; p < geometry.count; p++) {
        box.clear();
        addPrimitive(box, geometry, p, textOf);
        box.store(boxes, p);
    }
    const definitions = new Array(spaceCount).fill(null);
    const open = new Set();
    function definitionBox(space) {
        if (definitions[space]) {
            return definitions[space];
        }
        const around = new Box();
        if (open.has(space) || open.size >= deepestNesting) {
            return around;
        }
        open.add(space);
        for (const p of members.of(space)) {
            if (geometry.shape[p] === Shapes.reference) {
                boxReference(p);
            }
            around.addStored(boxes, p);
        }
        open.delete(space);
        definitions[space] = around;
        return around;
    }
    function boxReference(p) {
        const first = geometry.first[p];
        const referred = new Box();
        referred.addReferred(definitionBox(geometry.numbers[first + 6]), geometry.numbers, first);
        referred.store(boxes, p);
    }
    for (let space = 0; space < spaceCount; space++) {
        definitionBox(space);
    }
    return boxes;
}
