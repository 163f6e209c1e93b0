// Windows over curves: what is found lies within or on the edge, and nothing else is.

'use strict';

const assert = require('assert');
const {meetsWindow, offeredObjects} = require('./web');

function curvesOf(cls, data) {
    return offeredObjects([{object: Object.assign({class: cls, handle: '1'}, data)}])[0].curves;
}

function meets(curves, one, other) {
    return curves.some(curve => meetsWindow(curve, [...one, 0], [...other, 0]));
}

const line = curvesOf('AcDbLine', {startPoint: [0, 0, 0], endPoint: [10, 5, 0]});
const rising = curvesOf('AcDbLine', {startPoint: [0, 0, 0], endPoint: [10, 0, 10]});
const arc = curvesOf('AcDbArc', {center: [0, 0, 0], radius: 10, startAngle: 6, endAngle: 1});
const huge = curvesOf('AcDbArc', {center: [1e12, 0, 0], radius: 1e12, startAngle: 3, endAngle: 3.3});
const ellipse = curvesOf('AcDbEllipse', {center: [0, 0, 0], majorAxis: [8, 0, 0], minorAxis: [0, 2, 0],
    endAngle: 2 * Math.PI});
const half = curvesOf('AcDbPolyline', {points: [[0, 0], [4, 0]], bulges: [1]});
const square = curvesOf('AcDbPolyline', {points: [[0, 0], [4, 0], [4, 4], [0, 4]], isClosed: true});
const path = curvesOf('AcDb3dPolyline', {vertices: [[0, 0, 0], [4, 0, 2], [4, 4, 0]]});

for (const [what, curves, one, other, wanted] of [
    ['a line that crosses it without an end within', line, [4, 0], [6, 10], true],
    ['a line on its edge', line, [10, 5], [12, 7], true],
    ['a line past a corner', line, [4, 3.1], [5, 4], false],
    ['corners the other way round', line, [6, 10], [4, 0], true],
    ['a line that is above it where it would cross', rising, [4, -1], [6, 1], false],
    ['an arc between both ends, which touches it', arc, [10, -1], [11, 1], true],
    ['an arc whose circle meets it elsewhere', arc, [-11, -1], [-9, 1], false],
    ['the inside of an arc', arc, [-1, -1], [1, 1], false],
    ['a huge radius', huge, [-1e-3, -1], [1e-3, 1], true],
    ['a huge radius, beside it', huge, [1, -1], [2, 1], false],
    ['the end of a long axis', ellipse, [7.9, -0.1], [9, 0.1], true],
    ['within an ellipse', ellipse, [-1, -1], [1, 1], false],
    ['across an ellipse', ellipse, [-1, -3], [1, 3], true],
    ['the bow of a bulge', half, [1.9, -2.1], [2.1, -1.9], true],
    ['the chord of a bulge', half, [1.9, -0.1], [2.1, 0.1], false],
    ['the last segment of a closed one', square, [-1, 1], [1, 2], true],
    ['a path in space, where it is in the plane', path, [3, 3.9], [5, 5], true],
    ['a path in space, where it is not', path, [3, -1], [5, 1], false]
]) {
    assert.strictEqual(meets(curves, one, other), wanted, what);
}
