// The picture of a page without a canvas: boxes, the grid, distances, what is left out, and states behind steps.

'use strict';

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const vm = require('vm');

const folder = path.join(__dirname, '../../src/view/page');
for (const name of ['elements', 'boxes', 'grid', 'color', 'brushes', 'trace', 'scene', 'spaces', 'views', 'patterns',
    'ground', 'paint', 'slider', 'overlay']) {
    vm.runInThisContext(fs.readFileSync(path.join(folder, name + '.js'), 'utf8'), {filename: name + '.js'});
}
const {
    Box, Shapes, PathSteps, Grid, Scene, Visibility, Picker, Mapping, ScenePainter, brushKinds, traceCurves,
    visibleColor, contrastOf, spaceAt, ticksOf, wordsOfStep, fittingView, zoomedView, movedView, coversView,
    dashesOf, familyOf, linesOfFamily, roundStep, sceneOfDrawn, changeBetween, gridLines, brushesOf, lightPalette,
    firstSpaceOf, sentenceOfSpace, reasonOf
} = vm.runInThisContext(`({
    Box, Shapes, PathSteps, Grid, Scene, Visibility, Picker, Mapping, ScenePainter, brushKinds, traceCurves,
    visibleColor, contrastOf, spaceAt, ticksOf, wordsOfStep, fittingView, zoomedView, movedView, coversView,
    dashesOf, familyOf, linesOfFamily, roundStep, sceneOfDrawn, changeBetween, gridLines, brushesOf, lightPalette,
    firstSpaceOf, sentenceOfSpace, reasonOf
})`);

const {move, line, arc, ellipse, bezier, close} = PathSteps;
const turn = 2 * Math.PI;

// Each primitive is [shape, numbers, what else is not as usual]; it is the object of its number.
function sceneOf(primitives, {spaces = 3, texts = []} = {}) {
    const first = new Uint32Array(primitives.length + 1);
    primitives.forEach(([, numbers], i) => { first[i + 1] = first[i] + numbers.length; });
    const column = (type, name, usual) => type.from(primitives, ([, , others], i) =>
        others && name in others ? others[name] : usual === null ? i : usual);
    const geometry = {count: primitives.length, first: first,
        numbers: Float64Array.from([].concat(...primitives.map(([, numbers]) => numbers))),
        shape: Uint8Array.from(primitives, ([shape]) => Shapes[shape]), object: column(Int32Array, 'object', null),
        style: column(Uint16Array, 'style', 0), space: column(Uint16Array, 'space', 0),
        from: column(Int32Array, 'from', -1), until: column(Int32Array, 'until', -1)};
    const objects = {count: primitives.length, added: column(Int32Array, 'added', 0)};
    return new Scene(geometry, objects, spaces, number => texts[number]);
}

function isNear(actual, wanted, what) {
    assert.strictEqual(actual.length, wanted.length, what);
    wanted.forEach((value, i) => assert.ok(Math.abs(actual[i] - value) < 1e-9, what + ': ' + actual));
}

for (const [what, shape, numbers, box] of [
    ['a line that falls', 'line', [1, 5, 4, 2], [1, 2, 4, 5]],
    ['an arc over a quadrant', 'arc', [0, 0, 2, Math.PI / 4, Math.PI / 2], [-Math.SQRT2, Math.SQRT2, Math.SQRT2, 2]],
    ['an arc with the clock', 'arc', [0, 0, 2, Math.PI / 4, -Math.PI / 2], [Math.SQRT2, -Math.SQRT2, 2, Math.SQRT2]],
    ['a circle', 'arc', [1e8, 3, 2, 1, turn], [1e8 - 2, 1, 1e8 + 2, 5]],
    ['a bulge of 1', 'path', [move, 0, 0, arc, 2, 0, 2, Math.PI, Math.PI], [0, -2, 4, 0]],
    ['a flat bulge that begins where the line ends', 'path', [move, -1, 0, line, 0, 0, arc, 2, 2, Math.SQRT2 * 2,
        -3 * Math.PI / 4, Math.PI / 2], [-1, 2 - Math.SQRT2 * 2, 4, 0]],
    ['a tilted ellipse', 'path', [ellipse, 0, 0, 3, 3, -1, 1, 0, turn],
        [-Math.sqrt(10), -Math.sqrt(10), Math.sqrt(10), Math.sqrt(10)]],
    ['half of an ellipse', 'area', [ellipse, 0, 0, 4, 0, 0, 2, 0, Math.PI, close], [-4, 0, 4, 2]],
    ['the extremes of a cubic curve', 'path', [move, 0, 0, bezier, 0, 4, 4, 4, 4, 0], [0, 0, 4, 3]],
    ['a quadratic curve', 'path', [move, 0, 0, bezier, 2, 4, 4, 4, 6, 0], [0, 0, 6, 3]],
    ['a pattern', 'pattern', [2, 0, 0, 0, 1, 0, 0.5, 0, 0, 1, 2, 3, -1, move, 1, 1, line, 3, 1, line, 3, 4, close],
        [1, 1, 3, 4]],
    ['a view of model space', 'window', [1, 2, 30, 40, 0, 0, 1], [1, 2, 31, 42]],
    ['a ray has no end', 'ray', [0, 0, 1, 1], [Infinity, Infinity, -Infinity, -Infinity]]
]) {
    const {boxes} = sceneOf([[shape, numbers]]);
    if (box[0] === Infinity) {
        assert.ok(boxes[0] > boxes[2], what);
    } else {
        isNear(Array.from(boxes), box, what);
    }
}

// A text grows from its place: below one at the top, on both sides of a middle one, and with its angle.
{
    const boxOfText = (angle, width, place) => Array.from(sceneOf([['text', [10, 20, 2, angle, width, place, 0]]],
        {texts: ['seven']}).boxes);
    const [left, bottom, right, top] = boxOfText(0, 0, 1);
    assert.ok(left === 10 && right > 14 && top < 20.5 && bottom < 18, 'top left');
    const middle = boxOfText(0, 6, 5);
    isNear([middle[0], middle[2]], [7, 13], 'a given width');
    assert.ok(middle[1] < 19 && middle[3] > 21, 'middle');
    const upright = boxOfText(Math.PI / 2, 6, 10);
    isNear([upright[1], upright[3]], [20, 26], 'upright');
    assert.ok(upright[0] < 8.1 && upright[2] > 10, 'upright to the left');
}

// References: scaled, mirrored and nested ones; one within itself has no box for that part, and is searched in vain.
{
    const scene = sceneOf([
        ['line', [0, 0, 2, 1], {space: 1}],
        ['reference', [-2, 0, 0, 3, 10, 20, 1], {space: 2}],
        ['reference', [0, 1, -1, 0, 0, 0, 2]],
        ['reference', [1, 0, 0, 1, 5, 5, 1], {space: 1}],
    ]);
    const {boxes} = sceneOf([['line', [0, 0, 2, 1], {space: 1}], ['reference', [-2, 0, 0, 3, 10, 20, 1], {space: 2}],
        ['reference', [0, 1, -1, 0, 0, 0, 2]]]);
    isNear(Array.from(boxes.subarray(4, 8)), [6, 20, 10, 23], 'mirrored');
    isNear(Array.from(boxes.subarray(8, 12)), [-23, 6, -20, 10], 'nested and turned');
    assert.ok(scene.boxes[12] > scene.boxes[14], 'within itself');
    const picker = new Picker(scene, {shows: () => true});
    const view = {x: -30, y: 30, scale: 10};
    assert.deepStrictEqual(picker.objectsAt(0, view, (30 - 21.5) * 10, (30 - 8) * 10, 8), [2], 'through both');
}

// The grid finds what a search of all does, whatever the sizes are; far ones and empty ones too.
{
    let seed = 7;
    const random = () => (seed = (seed * 16807) % 2147483647) / 2147483647;
    const count = 3000;
    const boxes = new Float64Array(4 * count);
    for (let i = 0; i < count; i++) {
        const size = i % 50 ? random() : 10 ** (4 * random() - 1);
        const [x, y] = i === 7 ? [1e7, -1e7] : [random() * 100, random() * (i % 3 ? 100 : 0)];
        boxes.set(i % 97 === 5 ? [Infinity, Infinity, -Infinity, -Infinity]
            : [x, y, x + size * random(), y + size * random()], 4 * i);
    }
    const grid = new Grid(boxes, Int32Array.from({length: count}, (_, i) => i));
    const found = new Int32Array(count);
    for (let n = 0; n < 300; n++) {
        const [x, y, size] = [random() * 140 - 20, random() * 140 - 20, n % 10 ? random() * 5 : 1e8];
        const number = grid.query(x, y, x + size, y + size, found);
        const wanted = [];
        for (let i = 0; i < count; i++) {
            if (boxes[4 * i] <= x + size && boxes[4 * i + 2] >= x && boxes[4 * i + 1] <= y + size &&
                boxes[4 * i + 3] >= y) {
                wanted.push(i);
            }
        }
        assert.deepStrictEqual(Array.from(found.subarray(0, number)).sort((a, b) => a - b), wanted);
    }
    for (const few of [[], [[3, 3, 3, 3]], [[0, 5, 9, 5], [2, 5, 2, 5]]]) {
        const one = new Grid(Float64Array.from([].concat(...few)), Int32Array.from(few.keys()));
        assert.strictEqual(one.query(-100, -100, 100, 100, found), few.length);
        assert.strictEqual(one.queryPoint(2, 5, 3, found), few.length);
        assert.strictEqual(one.queryPoint(-50, 5, 3, found), 0);
    }
    const one = new Grid(Float64Array.of(0, 0, 4, 10), [0]);
    assert.strictEqual(one.shareOf({left: 1, bottom: 5, right: 9, top: 99}), 0.375);
    const many = 200000;
    const large = Float64Array.from({length: 4 * many}, (_, i) => (i >> 2) % (i % 2 ? 911 : 1013) + (i & 2));
    assert.strictEqual(new Grid(large, Int32Array.from({length: many}, (_, i) => i)).items.length, many);
}

// Distances in pixels, of a view with 10 pixels a unit whose origin is at 100, 200.
{
    const view = {x: -10, y: 20, scale: 10};
    const all = {shows: () => true};
    const distance = (primitive, x, y, options) => new Picker(sceneOf([primitive], options), all).distanceTo(0,
        Mapping.ofView(view), x, y, 8);
    for (const [what, primitive, x, y, wanted] of [
        ['beside a line', ['line', [0, 0, 10, 0]], 150, 195, 5],
        ['behind its end', ['line', [0, 0, 10, 0]], 203, 204, 5],
        ['within a circle', ['arc', [0, 0, 5, 0, turn]], 147, 200, 3],
        ['beside an arc, behind its end', ['arc', [0, 0, 5, 0, Math.PI / 2]], 150, 206, 6],
        ['beside a tilted ellipse', ['path', [ellipse, 0, 0, 3, 3, -1, 1, 0, turn]], 130, 170, 0],
        ['a cubic curve', ['path', [move, 0, 0, bezier, 0, 4, 4, 4, 4, 0]], 120, 168, 2],
        ['a closed path, on the side that closes it', ['path', [move, 0, 0, line, 4, 0, line, 4, 4, line, 0, 4, close]],
            98, 180, 2],
        ['a ray', ['ray', [0, 0, 1, 0]], 5e6, 204, 4],
        ['a line without ends', ['xline', [0, 0, 1, 0]], -5e6, 204, 4],
        ['a point', ['point', [0, 0]], 103, 204, 5],
        ['the inside of an area', ['area', [move, 0, 0, line, 9, 0, line, 9, 9, line, 0, 9, close]], 145, 155, 6],
        ['a circle of a million pixels', ['arc', [1e5, 0, 1e5, 0, turn]], 103, 200, 3]
    ]) {
        assert.ok(Math.abs(distance(primitive, x, y) - wanted) < 0.25, what + ': ' + distance(primitive, x, y));
    }
    const hole = ['area', [move, 0, 0, line, 9, 0, line, 9, 9, line, 0, 9, close,
        move, 2, 2, line, 7, 2, line, 7, 7, line, 2, 7, close]];
    assert.ok(distance(hole, 145, 155) > 8, 'a hole');
    assert.ok(distance(['ray', [0, 0, 1, 0]], 90, 200) > 8, 'behind the start of a ray');
    assert.ok(distance(['text', [0, 0, 2, 0, 0, 10, 0]], 120, 190, {texts: ['a text']}) <= 8, 'within a text');

    // The nearest curve first, ahead of what it lies in; the last one drawn of two that lie on one another.
    const picker = new Picker(sceneOf([['area', [move, 0, 0, line, 9, 0, line, 9, 9, line, 0, 9, close]],
        ['line', [3, 0, 3, 9]], ['line', [3.5, 0, 3.5, 9]], ['line', [3, 9, 3, 0]], ['line', [80, 0, 80, 9]]]), all);
    assert.deepStrictEqual(picker.objectsAt(0, view, 131, 155, 8), [3, 1, 2, 0]);
    assert.deepStrictEqual(picker.objectsAt(0, view, 300, 155, 8), []);
}

// Notes what a canvas' path is given.
class Pen {
    constructor() {
        this.calls = [];
        for (const name of ['moveTo', 'lineTo', 'arc', 'ellipse', 'bezierCurveTo', 'closePath']) {
            this[name] = (...values) => this.calls.push([name, ...values]);
        }
    }
}

function traced(primitive, view, window = {left: 0, bottom: 0, right: 800, top: 600}, mapping = Mapping.ofView(view)) {
    const scene = sceneOf([primitive]);
    const around = new Box();
    mapping.addBox(around, ...scene.boxes);
    const pen = new Pen();
    traceCurves(pen, mapping, window, scene.geometry, 0, around);
    return pen.calls;
}

// What goes to the canvas: its own arcs, and small numbers only, exact ones far from the origin.
{
    const [, circle] = traced(['arc', [3, 4, 2, 0, turn]], {x: 0, y: 10, scale: 10});
    assert.deepStrictEqual(circle.slice(0, 4), ['arc', 30, 60, 20]);
    assert.ok(Math.abs(circle[5] - circle[4] + turn) < 1e-12 && circle[6], 'against the clock, which goes down here');
    const [, slanted] = traced(['arc', [0, 0, 1, 0, turn]], null, undefined, new Mapping(10, 0, 5, 10));
    assert.strictEqual(slanted[0], 'ellipse');
    isNear([slanted[3] * slanted[4], slanted[3] ** 2 + slanted[4] ** 2], [100, 225], 'a slanted circle');
    const far = traced(['line', [123456789.12345679, 5, 123456789.12345679 + 1e-3, 5]],
        {x: 123456789.123, y: 5.001, scale: 1e5});
    assert.ok(Math.abs(far[0][1] - 45.679) < 2e-3 && Math.abs(far[1][1] - far[0][1] - 100) < 2e-3);
    for (const [what, primitive] of [
        ['a line', ['line', [-1e9, -1e9, 1e9, 1e9]]], ['a circle', ['arc', [1e9 + 3, 3, 1e9, 0, turn]]],
        ['an outline', ['path', [move, -1e9, 0, line, 1e9, 4, arc, 1e9, 1e9, 1e9, -Math.PI / 2, Math.PI]]],
        ['an area', ['area', [move, -1e9, -1e9, line, 1e9, -1e9, line, 3, 3, close]]],
        ['a curve', ['path', [move, -1e9, 0, bezier, 0, 0, 5, 5, 1e9, 7]]]
    ]) {
        const calls = traced(primitive, {x: 0, y: 6, scale: 100});
        assert.ok(calls.length > 1, what);
        const numbers = [].concat(...calls.map(([, ...values]) => values));
        assert.ok(numbers.every(value => value >= -1e-3 && value <= 800.001), what + ': ' + JSON.stringify(calls));
        assert.ok(calls.length < 500, what);
    }
    const rim = traced(['arc', [1e6 + 3, 3, 1e6, 0, turn]], {x: 0, y: 6, scale: 100});
    assert.ok(rim.every(([, x, y]) => Math.abs(x - 300 - (y - 300) ** 2 / 2e8) < 0.3), 'the rim of a large circle');
}

// Paints a scene behind its first step in a square of 100 pixels, and gives what the canvas was told.
function painted(scene, view) {
    const calls = [];
    const context = new Proxy({}, {get: (target, name) => name in target ? target[name]
        : (...values) => { calls.push([name, ...values]); return {width: 100, actualBoundingBoxAscent: 72}; }});
    const brush = {color: '#000000', width: 1, dash: []};
    const painter = new ScenePainter(scene);
    const index = {styles: [{layer: 0}], layers: [{}], layerSwitches: []};
    const look = {visibility: new Visibility(scene, index, 1, new Set()),
        brushes: Object.assign(new Array(brushKinds.styles + 1).fill(brush), {ofStyles: [brushKinds.styles]}),
        kinds: null, space: 0, density: 1, width: 100, height: 100, from: -1, version: 0, modelSpace: 0};
    for (const portion of painter.paint(context, view, look)) {
        assert.strictEqual(portion, undefined);
    }
    return {painter: painter, calls: calls};
}

// What is told apart by its size: dots, bars, tints.
{
    const scene = sceneOf([['line', [0, 0, 0.06, 0]], ['line', [0, 0, 0.08, 0]], ['point', [0.03, 0]],
        ['line', [0.01, 0, 0.05, -0.01]], ['text', [0, 0, 0.3, 0, 0, 10, 0]], ['text', [1, 0, 0.4, 0, 0, 10, 0]],
        ['line', [5, 5, 6, 6], {added: -1}], ['line', [5, 5, 6, 6], {until: 0}]], {texts: ['text']});
    const {painter, calls} = painted(scene, {x: 0, y: 5, scale: 10});
    const count = name => calls.filter(call => call[0] === name).length;
    assert.strictEqual(count('fillText'), 1, 'one text is high enough');
    assert.strictEqual(count('fillRect'), 2, 'two lines in one pixel are a dot, one text is a bar');
    assert.strictEqual(count('moveTo'), 2, 'a line and the old one; the point has its pixel taken');

    const old = painter.partsOf(Int32Array.of(1, 6, 7), Mapping.ofView({x: 0, y: 9, scale: 10}), -1).next().value;
    assert.deepStrictEqual(Array.from(old.strokes.items), [6, 1], 'what was there comes first');

    const family = familyOf(Mapping.ofView({x: 0, y: 10, scale: 10}), Float64Array.of(0, 0, 0, 0.5, 2, 3, -1), 0);
    assert.strictEqual(family.gap, 5);
    const lines = [];
    linesOfFamily(family, {left: 95, bottom: 0, right: 200, top: 12}, (...ends) => lines.push(ends));
    assert.deepStrictEqual(lines.map(ends => ends.map(Math.round)).sort(), [[80, 0, 200, 0], [80, 10, 200, 10],
        [80, 5, 200, 5]].sort());
    assert.deepStrictEqual(dashesOf([3, -1, 0, -1], 10), [30, 10, 1, 10]);
    assert.deepStrictEqual(dashesOf([-2, 1, 1], 10), [0, 20, 20, 0]);
}

// A definition is a path that is used again, but for what looks otherwise in each size; what is too large for a canvas
// is drawn piece by piece, as much of it as is seen.
{
    const added = [];
    global.Path2D = class extends Pen {
        addPath(other, matrix) {
            added.push([other.calls.length, matrix.a, matrix.e]);
        }
    };
    const scene = sceneOf([['line', [0, 0, 2, 2], {space: 1}], ['ray', [1, 0, 2, 0], {space: 1}],
        ['text', [0, 0, 1, 0, 0, 10, 0], {space: 1}],
        ['pattern', [1, 0, 0, 0, 0.1, 0, move, 0, 0, line, 2, 0, line, 2, 2, close], {space: 1}],
        ['reference', [1, 0, 0, 1, 1, 1, 1]], ['reference', [0.01, 0, 0, 0.01, 5, 5, 1]]], {texts: ['text']});
    const near = painted(scene, {x: 0, y: 10, scale: 10}).calls;
    const count = (calls, name) => calls.filter(call => call[0] === name).length;
    assert.strictEqual(added.length, 1, 'one of two is a dot');
    assert.deepStrictEqual([count(near, 'fillText'), count(near, 'fill'), count(near, 'fillRect')], [1, 1, 1]);
    assert.strictEqual(near.filter(([name, x]) => name === 'lineTo' && x === 108).length, 1, 'the ray');
    const far = painted(scene, {x: 1, y: 1 + 1e-4, scale: 1e6}).calls;
    assert.strictEqual(added.length, 1, 'no path');
    const numbers = [].concat(...far.filter(([name]) => /To$/.test(name)).map(([, ...values]) => values));
    assert.ok(numbers.length >= 4 && numbers.every(value => value >= -9 && value <= 109), 'within the canvas');
}

// Behind a step: what comes, changes, goes; layers that are switched, hidden ones, what was there, and sheets.
{
    const scene = sceneOf([['line', [0, 0, 1, 1], {from: 3, until: 7}], ['line', [0, 0, 1, 1], {from: -1, until: -1,
        added: -1}], ['line', [9, 9, 20, 20], {from: 7, style: 1}]]);
    const index = {styles: [{layer: 0}, {layer: 1}], layers: [{}, {}], firstSpace: 0,
        layerSwitches: [{step: 8, layer: 1, visible: false}, {step: 10, layer: 1, visible: true}],
        spaceSwitches: [{step: 2, space: 2}, {step: 5, space: 0}]};
    const shown = (step, ...hidden) => {
        const visibility = new Visibility(scene, index, step, new Set(hidden));
        return [0, 1, 2].filter(p => visibility.shows(p));
    };
    for (const [step, wanted] of [[0, [1]], [3, [1]], [4, [0, 1]], [7, [0, 1]], [8, [1, 2]], [9, [1]], [11, [1, 2]]]) {
        assert.deepStrictEqual(shown(step), wanted, 'behind ' + step);
    }
    assert.deepStrictEqual(shown(8, 1), [1]);
    assert.deepStrictEqual(shown(8, 'there'), [2]);
    assert.deepStrictEqual([0, 2, 3, 5, 6].map(step => spaceAt(index, step)), [0, 0, 2, 2, 0]);
    const data = {index: Object.assign({spaces: [{kind: 'model'}]}, index)};
    const change = (before, after) => changeBetween(data, scene, before, after);
    assert.deepStrictEqual(change(3, 4), {grows: true, defines: false});
    assert.deepStrictEqual([change(4, 3), change(7, 8), change(8, 9)].map(one => one.grows), [false, false, false]);
    const box = scene.extentsOf(0);
    assert.deepStrictEqual([box.left, box.top], [0, 20]);
    assert.strictEqual(scene.extentsOf(1).isEmpty, true);
}

// Views keep what is under the pointer, and know when a kept picture no longer does.
{
    const view = fittingView({left: 10, bottom: 10, right: 30, top: 20}, 400, 400);
    isNear([view.x + 200 / view.scale, view.y - 200 / view.scale], [20, 15], 'the middle');
    const zoomed = zoomedView(view, 4, 30, 70);
    isNear([zoomed.x + 30 / zoomed.scale, zoomed.y - 70 / zoomed.scale], [view.x + 30 / view.scale,
        view.y - 70 / view.scale], 'under the pointer');
    assert.ok(isFinite(fittingView({left: 5, bottom: 5, right: 5, top: 5}, 400, 400).scale), 'a single point');
    const kept = movedView(view, 100, 100);
    assert.strictEqual(coversView(kept, 600, 600, view, 400, 400), true);
    assert.strictEqual(coversView(kept, 600, 600, movedView(view, 99, -100), 400, 400), true);
    assert.strictEqual(coversView(kept, 600, 600, movedView(view, 0, -102), 400, 400), false);
    assert.strictEqual(coversView(kept, 600, 600, zoomedView(view, 0.5, 200, 200), 400, 400), false);
    const wide = fittingView({left: -1e140, bottom: 1e140, right: 1e140, top: 1.5e140}, 400, 400);
    assert.ok(Math.abs(2e140 * wide.scale - 352) < 1e-9, 'very large');
    const lines = (start, scale) => {
        const found = [];
        gridLines(start, 20 / scale, scale, 100, at => found.push(at));
        return found;
    };
    assert.deepStrictEqual(lines(-1, 5), [5.5, 25.5, 45.5, 65.5, 85.5]);
    for (const start of [1e15, -1e100]) {
        assert.strictEqual(lines(start, 1e12).length, 5, 'where doubles are coarse');
    }
    assert.deepStrictEqual([0.003, 1, 1.1, 2.5, 70].map(roundStep), [0.005, 1, 2, 5, 100]);
}

// Colors keep their hue and are seen.
for (const paper of [[255, 255, 255], [20, 27, 36]]) {
    for (const rgb of [[255, 255, 0], [0, 0, 255], [255, 255, 255], [0, 0, 0], [90, 200, 250]]) {
        const shown = visibleColor(rgb, paper);
        assert.ok(contrastOf(shown, paper) >= 3, shown + ' on ' + paper);
        assert.deepStrictEqual(rgb.map(value => value >= Math.max(...rgb)),
            shown.map(value => value >= Math.max(...shown)), rgb + ' as ' + shown);
    }
    assert.deepStrictEqual(visibleColor([200, 30, 60], paper), [200, 30, 60]);
}

// Colors of styles: by layer, of the role where nothing tells one, inherited in blocks; equal ones are one brush.
{
    const brushes = brushesOf({layers: [{name: '0', color: {index: 7}}, {name: 'Walls', color: {rgb: [200, 30, 60]}}],
        styles: [{role: 'object', layer: 0, color: 'bylayer'}, {role: 'object', layer: 1, color: 'bylayer'},
            {role: 'dimension', layer: 0, color: {index: 7}}, {role: 'object', layer: 0, color: 'byblock'},
            {role: 'object', layer: 1, color: {rgb: [200, 30, 60]}}, {role: 'object', layer: 1, color: {index: 7}}]},
    lightPalette);
    const styles = brushes.ofStyles.map(number => brushes[number]);
    assert.deepStrictEqual(styles.map(brush => brush.color), [lightPalette.ink, '#c81e3c', lightPalette.dimension,
        lightPalette.ink, '#c81e3c', lightPalette.ink]);
    assert.deepStrictEqual(styles.map(brush => brush.inherits), [true, false, false, true, false, false]);
    assert.strictEqual(styles[1], styles[4]);
}

// The first picture is not an empty one where another is not; a picture is told in words.
{
    const scene = sceneOf([['line', [0, 0, 4, 2.5], {space: 1}], ['arc', [0, 0, 1, 0, turn], {space: 1}],
        ['line', [1, 1, 3, 3], {space: 1}], ['line', [0, 0, 1, 1], {space: 2}]]);
    const data = {index: {firstSpace: 0, spaceSwitches: [], spaces: [{kind: 'model', name: 'Model'},
        {kind: 'sheet', name: 'Plan'}, {kind: 'block', name: 'Bolt'}]}, objects: {cls: [0, 1, 0, 0]},
    classWords: cls => ['Line', 'Circle'][cls]};
    assert.strictEqual(firstSpaceOf(data, scene, 0), 1);
    assert.strictEqual(sentenceOfSpace(data, scene, 1), 'Plan: 2 Line, 1 Circle; from -1, -1 to 4, 3');
    assert.strictEqual(sentenceOfSpace(data, scene, 0), 'Model: nothing drawn');
}

// What a comparison has found, in words that do not say twice whom it is about.
{
    const empty = {what: '', recorded: '', drawn: '', reason: ''};
    const words = (finding, subject) => reasonOf(Object.assign({}, empty, finding), subject);
    assert.strictEqual(words({kind: 'missingAsTold', what: 'AcDbLine 39', reason: 'why'}, 'AcDbLine 39'),
        'missing, as the report says: why');
    assert.strictEqual(words({kind: 'missingAsTold', what: 'property "Layer" of AcDbLine 39', reason: 'why'},
        'AcDbLine 39'), 'property "Layer" is missing, as the report says: why');
    assert.strictEqual(words({kind: 'different', what: 'Radius', recorded: '2', drawn: ''}, 'AcDbCircle 3'),
        'different Radius: recorded 2, drawn nothing');
    assert.strictEqual(words({kind: 'missing', reason: 'why'}, 'AcDbCircle 3'), 'missing: why');
    assert.ok(words({kind: 'different', what: 'Text', recorded: 'a'.repeat(1000), drawn: 'b'}, '').length < 120);
}

// Ticks stand where their command ends, and tell the worst of it; a reader hears the command of the step before.
{
    const names = ['LINE', '', '', 'ARC', ''];
    const data = {steps: {count: 5, parent: [-1, 0, 0, -1, 3]}, stepName: step => names[step],
        commandOf: step => step < 3 ? 0 : 3};
    assert.deepStrictEqual(ticksOf(data, [{step: 2, kind: 'loss'}, {step: 1, kind: 'assumption'}, {step: -1,
        kind: 'loss'}], [4, 1]), [{end: 3, mark: 3}, {end: 5, mark: 2}]);
    assert.deepStrictEqual([0, 3, 4].map(step => wordsOfStep(data, step)), ['before the first step',
        'behind step 3, LINE', 'behind step 4, ARC']);
}

// What a macro has drawn of its own is a scene like the recorded one.
{
    const scene = sceneOfDrawn([{shape: Shapes.line, numbers: [0, 0, 4, 4], kind: 4, text: '', space: 0},
        {shape: Shapes.text, numbers: [8, 8, 1, 0, 0, 10, 99], kind: 2, text: 'drawn', space: 1}], 2);
    isNear(Array.from(scene.boxes.subarray(0, 4)), [0, 0, 4, 4], 'a line');
    assert.ok(scene.boxes[6] - 8 > 3, 'the text is its own');
    assert.deepStrictEqual(Array.from(scene.within(1, scene.extentsOf(1))), [1]);
}
