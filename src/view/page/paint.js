// Draws a scene on a canvas, in portions: each painting is a generator that gives way again and again, so that whoever
// runs it can stop. All lengths here are pixels of the canvas.

'use strict';

const leastBox = 0.7; // what is smaller is a dot
const leastText = 3.5; // capitals that are lower are a bar
const leastGap = 3; // between the lines of a pattern; closer ones are a tint
const portion = 256; // things that are drawn without giving way
const sortedPortion = 20000; // things that are looked at without giving way
const dense = 2500; // strokes from which on they are as thin as a canvas draws fast
const lettersSize = 100; // of the one font, whose texts are scaled
const inherited = -2; // a brush within a definition that is its reference's
const definitionSize = 4096; // of a definition's path, in its own units

const brushKinds = {there: 0, comparison: 1, styles: 8};

// What has no box, such as a line without ends, is none.
function isDot(boxes, p, scale) {
    const size = Math.max(boxes[4 * p + 2] - boxes[4 * p], boxes[4 * p + 3] - boxes[4 * p + 1]);
    return size >= 0 && size * scale < leastBox;
}

// What a picture looks like: {visibility, brushes, kinds, space, density, width, height, from}. `brushes` has also a
// list `ofStyles` of their numbers by styles; `kinds` are those of a comparison for each object, or null; `from` is a
// step since which alone is drawn, or -1; `density` is the number of pixels of the canvas in one of the page.
class ScenePainter {
    constructor(scene) {
        this.scene = scene;
        this.definitions = new Map();
        this.taken = new Uint8Array(0);
    }

    *paint(context, view, look) {
        this.look = look;
        const pixels = look.width * look.height;
        if (this.taken.length === pixels) {
            this.taken.fill(0);
        } else {
            this.taken = new Uint8Array(pixels);
        }
        const window = {left: -8, bottom: -8, right: look.width + 8, top: look.height + 8};
        context.lineJoin = 'round';
        context.font = lettersSize + 'px system-ui, sans-serif';
        this.capitals = context.measureText('H').actualBoundingBoxAscent || lettersSize * 0.72;
        this.isDense = false;
        yield* this.space(context, look.space, Mapping.ofView(view), window, -1, 0);
        context.setTransform(1, 0, 0, 1, 0, 0);
    }

    // `parent` is the brush of the reference that shows the space, or -1.
    *space(context, space, mapping, window, parent, depth) {
        const {from, visibility} = this.look;
        const items = from < 0 || depth ? this.scene.within(space, this.boxBehind(mapping, window))
            : this.scene.comers(space, from, visibility.step);
        const parts = yield* this.partsOf(items, mapping, parent);
        yield;
        yield* this.fills(context, parts.fills, mapping, window, parent);
        yield* this.strokes(context, parts.strokes, mapping, window);
        yield* this.references(context, parts.references, mapping, window, parent, depth);
        yield* this.texts(context, parts.texts, mapping, parent);
        for (const p of parts.windows) {
            yield* this.viewport(context, p, mapping, window, parent, depth);
        }
    }

    // Around the part of a space that a window shows.
    boxBehind(mapping, window) {
        const {a, b, c, d, x0, y0, e, f} = mapping;
        const area = a * d - b * c;
        const box = new Box();
        if (area) {
            new Mapping(d / area, -b / area, -c / area, a / area, e, f, x0, y0).addBox(box, window.left, window.bottom,
                window.right, window.top);
        }
        return box;
    }

    brushOf(p, parent) {
        if (parent >= 0 && parent < brushKinds.styles) {
            return parent;
        }
        const {geometry} = this.scene;
        if (this.look.kinds) {
            return parent === inherited ? inherited : brushKinds.comparison + this.look.kinds[geometry.object[p]];
        }
        if (parent === -1 && this.scene.isOld(p)) {
            return brushKinds.there;
        }
        const brush = this.look.brushes.ofStyles[geometry.style[p]];
        return parent !== -1 && this.look.brushes[brush].inherits ? parent : brush;
    }

    // Those of the items that are shown, by how they are drawn. What was there before comes first.
    *partsOf(items, mapping, parent) {
        const {geometry} = this.scene;
        const parts = {fills: [], references: [], texts: [], windows: [], strokes: null};
        const lists = new Array(Object.keys(Shapes).length).fill(null);
        lists[Shapes.area] = lists[Shapes.pattern] = parts.fills;
        lists[Shapes.text] = parts.texts;
        lists[Shapes.reference] = parts.references;
        lists[Shapes.window] = parts.windows;
        const brushes = new Uint16Array(items.length);
        const counts = new Int32Array(this.look.brushes.length + 1);
        const stroked = new Int32Array(items.length);
        const scale = mapping.scale;
        let count = 0;
        for (let i = 0; i < items.length; i++) {
            if (i % sortedPortion === sortedPortion - 1) {
                yield;
            }
            const p = items[i];
            const shape = geometry.shape[p];
            if (!this.look.visibility.shows(p)) {
                continue;
            }
            if (lists[shape] && (shape === Shapes.window || !isDot(this.scene.boxes, p, scale))) {
                lists[shape].push(p);
            } else {
                brushes[count] = this.brushOf(p, parent);
                counts[brushes[count] + 1]++;
                stroked[count++] = p;
            }
        }
        for (let brush = 1; brush < counts.length; brush++) {
            counts[brush] += counts[brush - 1];
        }
        const next = counts.slice();
        const sorted = new Int32Array(count);
        for (let i = 0; i < count; i++) {
            sorted[next[brushes[i]]++] = stroked[i];
        }
        parts.strokes = {items: sorted, first: counts};
        this.isDense = this.isDense || count + parts.references.length > dense;
        parts.fills.sort((one, other) => this.scene.isOld(other) - this.scene.isOld(one) || one - other);
        return parts;
    }

    useBrush(context, number) {
        const {color, width, dash} = this.look.brushes[number];
        const {density} = this.look;
        context.strokeStyle = color;
        context.fillStyle = color;
        context.lineWidth = this.isDense ? 1 : width * density;
        context.lineCap = this.isDense ? 'butt' : 'round';
        context.setLineDash(dash.map(length => Math.max(length * density, this.isDense ? 1 : 0)));
    }

    *strokes(context, {items, first}, mapping, window) {
        const {geometry, boxes} = this.scene;
        const scale = mapping.scale;
        const around = new Box();
        const tracer = new Tracer(context, mapping, window, false);
        let drawn = 0;
        for (let brush = 0; brush + 1 < first.length; brush++) {
            if (first[brush] === first[brush + 1]) {
                continue;
            }
            this.useBrush(context, brush);
            context.beginPath();
            for (let i = first[brush]; i < first[brush + 1]; i++) {
                const p = items[i];
                const shape = geometry.shape[p];
                if (isEndless(shape)) {
                    traceEndless(context, mapping, window, geometry, p);
                } else if (shape === Shapes.point) {
                    this.point(context, mapping, geometry, p);
                } else if (isDot(boxes, p, scale)) {
                    this.dot(context, mapping, p);
                } else {
                    around.clear();
                    mapping.addBox(around, boxes[4 * p], boxes[4 * p + 1], boxes[4 * p + 2], boxes[4 * p + 3]);
                    if (isFar(around)) {
                        traceCurves(context, mapping, window, geometry, p, around);
                    } else {
                        tracer.primitive(geometry, p);
                    }
                }
                if (++drawn % portion === 0) {
                    context.stroke();
                    yield;
                    context.beginPath();
                }
            }
            context.stroke();
        }
        yield;
    }

    // Whether a pixel has a dot from now on, and had none.
    takePixel(x, y) {
        const [column, row] = [Math.floor(x), Math.floor(y)];
        if (column < 0 || row < 0 || column >= this.look.width || row >= this.look.height) {
            return false;
        }
        const at = row * this.look.width + column;
        if (this.taken[at]) {
            return false;
        }
        this.taken[at] = 1;
        return true;
    }

    dot(context, mapping, p) {
        const {boxes} = this.scene;
        const [x, y] = [(boxes[4 * p] + boxes[4 * p + 2]) / 2, (boxes[4 * p + 1] + boxes[4 * p + 3]) / 2];
        const [column, row] = [mapping.x(x, y), mapping.y(x, y)];
        if (this.takePixel(column, row)) {
            context.fillRect(Math.floor(column), Math.floor(row), 1, 1);
        }
    }

    point(context, mapping, geometry, p) {
        const first = geometry.first[p];
        const [x, y] = [geometry.numbers[first], geometry.numbers[first + 1]];
        if (this.takePixel(mapping.x(x, y), mapping.y(x, y))) {
            tracePoint(context, mapping, geometry.numbers, first, 2.5 * this.look.density);
        }
    }

    *fills(context, fills, mapping, window, parent) {
        let drawn = 0;
        let used = -1;
        for (const p of fills) {
            const brush = this.brushOf(p, parent);
            const isPattern = this.scene.geometry.shape[p] === Shapes.pattern;
            if (brush !== used) {
                this.useBrush(context, brush);
            }
            this.fill(context, p, mapping, window);
            used = isPattern ? -1 : brush; // patterns change strokes
            if (++drawn % portion === 0 || isPattern) {
                yield;
            }
        }
    }

    // An area or a pattern, with the brush in use.
    fill(context, p, mapping, window) {
        const {geometry, boxes} = this.scene;
        const around = new Box();
        mapping.addBox(around, ...boxes.subarray(4 * p, 4 * p + 4));
        context.beginPath();
        traceCurves(context, mapping, window, geometry, p, around);
        if (geometry.shape[p] === Shapes.area) {
            context.fill('evenodd');
            return;
        }
        const {density} = this.look;
        const families = familiesOf(mapping, geometry.numbers, geometry.first[p]);
        const isTint = family => !(family.gap >= leastGap * density);
        families.filter(isTint).forEach(({gap}) => {
            context.globalAlpha = Math.min(0.3, Math.max(0.12, 0.5 * density / gap));
            context.fill('evenodd');
            context.globalAlpha = 1;
        });
        const lines = families.filter(family => !isTint(family));
        if (lines.length) {
            const region = {left: Math.max(around.left, window.left), right: Math.min(around.right, window.right),
                bottom: Math.max(around.bottom, window.bottom), top: Math.min(around.top, window.top)};
            context.save();
            context.clip('evenodd');
            lines.forEach(family => this.family(context, family, region));
            context.restore();
        }
    }

    family(context, family, region) {
        const {density} = this.look;
        const lengths = dashesOf(family.dashes, family.unit);
        const isDashed = lengths.reduce((sum, length) => sum + length, 0) >= leastGap * density;
        context.setLineDash(isDashed ? lengths : []);
        context.lineCap = 'butt';
        context.lineWidth = density;
        context.beginPath();
        linesOfFamily(family, region, (fromX, fromY, toX, toY) => {
            context.moveTo(fromX, fromY);
            context.lineTo(toX, toY);
        });
        context.stroke();
    }

    *texts(context, texts, mapping, parent) {
        let drawn = 0;
        for (const p of texts) {
            context.fillStyle = this.look.brushes[this.brushOf(p, parent)].color;
            this.text(context, p, mapping);
            if (++drawn % portion === 0) {
                context.setTransform(1, 0, 0, 1, 0, 0);
                yield;
            }
        }
        context.setTransform(1, 0, 0, 1, 0, 0);
    }

    // Leaves the canvas with a transformation of its own.
    text(context, p, mapping) {
        const {numbers, first} = this.scene.geometry;
        const at = first[p];
        const text = this.scene.textOf(numbers[at + 6]);
        const [cosine, sine] = [Math.cos(numbers[at + 3]), Math.sin(numbers[at + 3])];
        const along = [mapping.a * cosine + mapping.c * sine, mapping.b * cosine + mapping.d * sine];
        const up = [mapping.c * cosine - mapping.a * sine, mapping.d * cosine - mapping.b * sine];
        const place = placeOfText(numbers, at, text);
        const [x, y] = [mapping.x(numbers[at], numbers[at + 1]), mapping.y(numbers[at], numbers[at + 1])];
        if (place.height * Math.hypot(...up) < leastText * this.look.density) {
            context.setTransform(...along, ...up, x, y);
            context.globalAlpha = 0.45;
            context.fillRect(place.left, place.baseline + place.height * 0.2, place.width, place.height * 0.6);
            context.globalAlpha = 1;
            return;
        }
        const unit = place.height / this.capitals;
        const wide = numbers[at + 4] ? numbers[at + 4] / context.measureText(text).width : unit;
        context.setTransform(along[0] * wide, along[1] * wide, -up[0] * unit, -up[1] * unit, x, y);
        context.textAlign = ['left', 'center', 'right'][place.column];
        context.fillText(text, 0, -place.baseline / unit);
    }

    *references(context, references, mapping, window, parent, depth) {
        const {geometry, boxes} = this.scene;
        const batches = new Map();
        const around = new Box();
        for (const p of references) {
            const first = geometry.first[p];
            const brush = this.brushOf(p, parent);
            const inner = mapping.referred(geometry.numbers, first);
            const space = geometry.numbers[first + 6];
            around.clear();
            mapping.addBox(around, ...boxes.subarray(4 * p, 4 * p + 4));
            if (isFar(around)) {
                if (depth < deepestNesting) {
                    yield* this.space(context, space, inner, window, brush, depth + 1);
                }
            } else {
                yield* this.reference(context, this.definitionOf(space), inner, window, brush, batches);
            }
        }
        for (const brush of batches.keys()) {
            this.strokeBatch(context, batches, brush);
            yield;
        }
    }

    *reference(context, definition, mapping, window, brush, batches) {
        const own = number => brush < brushKinds.styles || number === inherited ? brush : number;
        const {x, y, unit} = definition;
        const matrix = {a: mapping.a / unit, b: mapping.b / unit, c: mapping.c / unit, d: mapping.d / unit,
            e: mapping.x(x, y), f: mapping.y(x, y)};
        for (const {path, number} of definition.fills) {
            context.fillStyle = this.look.brushes[own(number)].color;
            context.setTransform(matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f);
            context.fill(path, 'evenodd');
            context.setTransform(1, 0, 0, 1, 0, 0);
        }
        for (const [number, {path, count}] of definition.strokes) {
            const batch = batches.get(own(number)) || {path: new Path2D(), count: 0};
            batches.set(own(number), batch);
            batch.path.addPath(path, matrix);
            batch.count += count;
            if (batch.count >= portion) {
                this.strokeBatch(context, batches, own(number));
                yield;
            }
        }
        for (const {p, matrix: nested, number} of definition.others) {
            const inner = mapping.referred(nested, 0);
            if (!isDot(this.scene.boxes, p, inner.scale) || this.scene.geometry.shape[p] === Shapes.point) {
                this.other(context, p, inner, window, own(number));
            }
        }
        if (definition.others.length) {
            yield;
        }
    }

    strokeBatch(context, batches, brush) {
        this.useBrush(context, brush);
        context.stroke(batches.get(brush).path);
        batches.delete(brush);
    }

    // What of a definition does not go into a path: its look depends on the size at which it is seen.
    other(context, p, mapping, window, brush) {
        const {geometry} = this.scene;
        const shape = geometry.shape[p];
        if (shape === Shapes.text) {
            context.fillStyle = this.look.brushes[brush].color;
            this.text(context, p, mapping);
            context.setTransform(1, 0, 0, 1, 0, 0);
            return;
        }
        this.useBrush(context, brush);
        if (shape === Shapes.pattern) {
            this.fill(context, p, mapping, window);
        } else {
            context.beginPath();
            if (isEndless(shape)) {
                traceEndless(context, mapping, window, geometry, p);
            } else {
                tracePoint(context, mapping, geometry.numbers, geometry.first[p], 2.5 * this.look.density);
            }
            context.stroke();
        }
    }

    // A definition as paths, with what it refers to, in units of its own around its middle.
    definitionOf(space) {
        const kept = this.definitions.get(space);
        if (kept && kept.version === this.look.version) {
            return kept;
        }
        const box = new Box();
        this.scene.members.of(space).forEach(p => box.addStored(this.scene.boxes, p));
        const x = box.isEmpty ? 0 : (box.left + box.right) / 2;
        const y = box.isEmpty ? 0 : (box.bottom + box.top) / 2;
        const unit = definitionSize / (Math.max(box.right - box.left, box.top - box.bottom) || 1);
        const definition = {version: this.look.version, x: x, y: y, unit: unit > 0 ? unit : 1, strokes: new Map(),
            fills: [], others: []};
        const scaled = new Mapping(definition.unit, 0, 0, definition.unit, x, y);
        this.collect(definition, space, scaled, Float64Array.of(1, 0, 0, 1, 0, 0), inherited, 0);
        this.definitions.set(space, definition);
        return definition;
    }

    // `matrix` leads from the space into the definition, and `mapping` from there to its paths.
    collect(definition, space, mapping, matrix, parent, depth) {
        const {geometry} = this.scene;
        for (const p of depth < deepestNesting ? this.scene.members.of(space) : []) {
            const shape = geometry.shape[p];
            const number = this.brushOf(p, parent);
            if (!this.look.visibility.shows(p) || shape === Shapes.window) {
                continue;
            }
            if (shape === Shapes.reference) {
                const first = geometry.first[p];
                const inner = new Mapping(...matrix.subarray(0, 4), 0, 0, ...matrix.subarray(4, 6)).referred(
                    geometry.numbers, first);
                this.collect(definition, geometry.numbers[first + 6], mapping.referred(geometry.numbers, first),
                    Float64Array.of(inner.a, inner.b, inner.c, inner.d, inner.e, inner.f), number, depth + 1);
            } else if (shape === Shapes.area) {
                const path = new Path2D();
                new Tracer(path, mapping, null, false).primitive(geometry, p);
                definition.fills.push({path: path, number: number});
            } else if (shape === Shapes.line || shape === Shapes.arc || shape === Shapes.path) {
                const stroke = definition.strokes.get(number) || {path: new Path2D(), count: 0};
                definition.strokes.set(number, stroke);
                new Tracer(stroke.path, mapping, null, false).primitive(geometry, p);
                stroke.count++;
            } else {
                definition.others.push({p: p, matrix: matrix, number: number});
            }
        }
    }

    // Model space as a sheet's window shows it.
    *viewport(context, p, mapping, window, parent, depth) {
        const {numbers, first} = this.scene.geometry;
        const [left, bottom, width, height, x, y, scale] = numbers.subarray(first[p], first[p] + 7);
        const around = new Box();
        mapping.addBox(around, left, bottom, left + width, bottom + height);
        const seen = {left: Math.max(around.left, window.left), right: Math.min(around.right, window.right),
            bottom: Math.max(around.bottom, window.bottom), top: Math.min(around.top, window.top)};
        if (seen.left >= seen.right || seen.bottom >= seen.top) {
            return;
        }
        context.save();
        context.beginPath();
        context.rect(seen.left, seen.bottom, seen.right - seen.left, seen.top - seen.bottom);
        context.clip();
        if (depth < 1) {
            const matrix = Float64Array.of(scale, 0, 0, scale, left + width / 2 - scale * x,
                bottom + height / 2 - scale * y);
            yield* this.space(context, this.look.modelSpace, mapping.referred(matrix, 0), seen, -1, depth + 1);
        }
        context.restore();
        this.useBrush(context, this.brushOf(p, parent));
        context.strokeRect(around.left, around.bottom, around.right - around.left, around.top - around.bottom);
    }

    // The curves of a primitive and of all that it refers to, for a halo, and the frames of its texts.
    trace(curves, frames, p, mapping, window, reach, depth = 0) {
        const {geometry, boxes} = this.scene;
        const {numbers} = geometry;
        const first = geometry.first[p];
        const around = new Box();
        switch (geometry.shape[p]) {
        case Shapes.point:
            tracePoint(curves, mapping, numbers, first, reach);
            break;
        case Shapes.ray:
        case Shapes.xline:
            traceEndless(curves, mapping, window, geometry, p);
            break;
        case Shapes.text:
            traceText(frames, mapping, numbers, first, this.scene.textOf(numbers[first + 6]));
            break;
        case Shapes.window:
            traceRectangle(curves, mapping, boxes.subarray(4 * p, 4 * p + 4));
            break;
        case Shapes.reference:
            for (const member of depth < deepestNesting ? this.scene.members.of(numbers[first + 6]) : []) {
                this.trace(curves, frames, member, mapping.referred(numbers, first), window, reach, depth + 1);
            }
            break;
        default:
            mapping.addBox(around, ...boxes.subarray(4 * p, 4 * p + 4));
            traceCurves(curves, mapping, window, geometry, p, around);
        }
    }
}
