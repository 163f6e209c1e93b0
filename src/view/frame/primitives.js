// What a macro drew, in the forms of the page's geometry: of what is not drawn as it was recorded, where it is. How the
// application shows dimensions, hatches and other compound objects is not known here; of these the points that they are
// defined by are joined.

'use strict';

const shapes = {line: 0, arc: 1, path: 2, area: 3, text: 4, point: 5, ray: 6, xline: 7};
const pathSteps = {move: 0, line: 1, arc: 2, ellipse: 3, bezier: 4, close: 5};
const wholeTurn = 2 * Math.PI;
const lineDistance = 5 / 3; // of the lines of a note, in heights of its letters

function firstValues(thing, question, count) {
    const values = (thing.held.get(question) || []).slice(0, count);
    return values.length === count && values.every(value => Number.isFinite(value)) ? values : null;
}

function valueOr(thing, question, other) {
    const value = heldOf(thing, question, 0);
    return Number.isFinite(value) ? value : other;
}

// The points of a row such as VertexCoordinate(0), VertexCoordinate(1), seen from above.
function pointsOf(thing, name, begin, end = '') {
    const points = [];
    for (let point; (point = firstValues(thing, name + (points.length + begin) + end, 2));) {
        points.push(point);
    }
    return points;
}

// Against the clock, from the start to the end; the same end is a whole turn.
function sweepOf(start, end) {
    const sweep = (end - start) % wholeTurn;
    return sweep > 1e-12 ? sweep : sweep + wholeTurn;
}

function pathOf(points, isClosed = false) {
    const steps = points.map((point, i) => [i ? pathSteps.line : pathSteps.move, ...point]);
    return [].concat(...steps, isClosed ? [pathSteps.close] : []);
}

function lineBetween(shape, from, to) {
    return thing => {
        const ends = [from, to].map(question => firstValues(thing, question, 2));
        return ends.every(one => one) ? [{shape: shape, numbers: [].concat(...ends)}] : [];
    };
}

function drawArc(thing) {
    const center = firstValues(thing, 'Center()', 2);
    const isCircle = thing.cls === 'Circle';
    const start = isCircle ? 0 : valueOr(thing, 'StartAngle()', 0);
    const sweep = isCircle ? wholeTurn : sweepOf(start, valueOr(thing, 'EndAngle()', 0));
    return center ? [{shape: shapes.arc, numbers: [...center, valueOr(thing, 'Radius()', 0), start, sweep]}] : [];
}

// Of its axes the second one is a quarter of a turn ahead of the first.
function drawEllipse(thing) {
    const [center, axis] = ['Center()', 'MajorAxis()'].map(question => firstValues(thing, question, 2));
    const long = axis && Math.hypot(...axis);
    if (!center || !long) {
        return [];
    }
    const major = axis.map(one => one * valueOr(thing, 'MajorRadius()', long) / long);
    const short = valueOr(thing, 'MinorRadius()', long);
    const minor = [-axis[1] * short / long, axis[0] * short / long];
    const start = valueOr(thing, 'StartAngle()', 0);
    const at = center.map((one, i) => one + major[i] * Math.cos(start) + minor[i] * Math.sin(start));
    const sweep = sweepOf(start, valueOr(thing, 'EndAngle()', wholeTurn));
    return [{shape: shapes.path, numbers: [pathSteps.move, ...at, pathSteps.ellipse, ...center, ...major, ...minor,
        start, sweep]}];
}

// A segment of a polyline; its angle is the arc's, negative with the clock.
function segmentSteps(from, to, angle) {
    const chord = [to[0] - from[0], to[1] - from[1]];
    const length = Math.hypot(...chord);
    if (!angle || !length || Math.abs(angle) >= wholeTurn) {
        return [pathSteps.line, ...to];
    }
    const offset = 1 / (2 * Math.tan(angle / 2)); // of the center from the chord's middle, in chords
    const center = [(from[0] + to[0]) / 2 - chord[1] * offset, (from[1] + to[1]) / 2 + chord[0] * offset];
    return [pathSteps.arc, ...center, Math.abs(length / (2 * Math.sin(angle / 2))),
        Math.atan2(from[1] - center[1], from[0] - center[0]), angle];
}

function drawPolyline(thing) {
    const points = pointsOf(thing, 'VertexCoordinate(', 0, ')');
    const isClosed = heldOf(thing, 'Closed()', 0) === true && points.length > 1;
    const numbers = points.length ? [pathSteps.move, ...points[0]] : [];
    points.forEach((from, i) => {
        if (i + 1 < points.length || isClosed) {
            numbers.push(...segmentSteps(from, points[(i + 1) % points.length],
                valueOr(thing, 'SegmentAngle(' + i + ')', 0)));
        }
    });
    return points.length > 1 ? [{shape: shapes.path, numbers: numbers}] : [];
}

// The slopes of a cubic curve through values at rising places, whose curvature goes on at each of them. At an end without
// a slope it becomes straight.
function slopesThrough(places, values, first, last) {
    const end = values.length - 1;
    const steps = places.slice(1).map((place, i) => place - places[i]);
    const rises = steps.map((step, i) => (values[i + 1] - values[i]) / step);
    // Rows of (below, middle, above | right), of which the ones below are eliminated one after the other.
    const rows = values.map((_, i) => {
        if (i === 0) {
            return first === null ? [0, 2, 1, 3 * rises[0]] : [0, 1, 0, first];
        }
        if (i === end) {
            return last === null ? [1, 2, 0, 3 * rises[end - 1]] : [0, 1, 0, last];
        }
        return [steps[i], 2 * (steps[i - 1] + steps[i]), steps[i - 1],
            3 * (steps[i] * rises[i - 1] + steps[i - 1] * rises[i])];
    });
    for (let i = 1; i <= end; ++i) {
        const share = rows[i][0] / rows[i - 1][1];
        rows[i][1] -= share * rows[i - 1][2];
        rows[i][3] -= share * rows[i - 1][3];
    }
    const slopes = [];
    for (let i = end; i >= 0; --i) {
        slopes[i] = (rows[i][3] - (i < end ? rows[i][2] * slopes[i + 1] : 0)) / rows[i][1];
    }
    return slopes;
}

function drawSpline(thing) {
    const isClosed = heldOf(thing, 'Closed()', 0) === true;
    const given = pointsOf(thing, 'FitPointCoordinate(', 0, ')');
    const points = closed(given, isClosed).filter((point, i, all) => i === 0
        || Math.hypot(point[0] - all[i - 1][0], point[1] - all[i - 1][1]) > 0);
    if (points.length < 2) {
        return [];
    }
    const places = [0];
    points.slice(1).forEach((point, i) => places.push(places[i] + Math.hypot(point[0] - points[i][0],
        point[1] - points[i][1])));
    const tangents = ['StartTangent()', 'EndTangent()'].map(question => {
        const tangent = isClosed ? null : firstValues(thing, question, 2);
        const length = tangent && Math.hypot(...tangent);
        return length ? tangent.map(one => one / length) : [null, null];
    });
    const slopes = [0, 1].map(axis => slopesThrough(places, points.map(point => point[axis]),
        tangents[0][axis], tangents[1][axis]));
    const numbers = [pathSteps.move, ...points[0]];
    for (let i = 1; i < points.length; ++i) {
        const third = (places[i] - places[i - 1]) / 3;
        numbers.push(pathSteps.bezier, ...[0, 1].map(axis => points[i - 1][axis] + third * slopes[axis][i - 1]),
            ...[0, 1].map(axis => points[i][axis] - third * slopes[axis][i]), ...points[i]);
    }
    return [{shape: shapes.path, numbers: numbers}];
}

// The third corner of a solid is opposite the first one's neighbour.
function drawSolid(thing) {
    const [one, two, three, four] = pointsOf(thing, 'Vertex', 1, 'Coordinate()');
    const corners = [one, two, four, three].filter(corner => corner);
    return corners.length > 2 ? [{shape: shapes.area, numbers: pathOf(corners, true)}] : [];
}

function drawFace(thing) {
    const corners = pointsOf(thing, 'Vertex', 1, 'Coordinate()');
    const edges = corners.map((corner, i) => [corner, corners[(i + 1) % corners.length]])
        .filter((_, i) => heldOf(thing, 'Edge' + (i + 1) + 'Visible()', 0) !== false);
    return edges.length ? [{shape: shapes.path, numbers: [].concat(...edges.map(edge => pathOf(edge)))}] : [];
}

const rows = ['Top', 'Middle', 'Bottom'];
const columns = ['Left', 'Center', 'Right'];

// The number of a place as texts of a picture have it: 1 top left to 9 bottom right, 10 to 12 on the baseline.
function placeOfText(justification) {
    const name = String(justification).replace(/^.*_/, '');
    const row = rows.findIndex(one => name.startsWith(one));
    const column = columns.findIndex(one => name.endsWith(one));
    return row >= 0 && column >= 0 ? 3 * row + column + 1 : 10 + Math.max(column, 0);
}

function textPrimitive(point, height, angle, place, text) {
    return {shape: shapes.text, numbers: [...point, height, angle, 0, place, 0], text: text};
}

function drawSimpleNote(thing) {
    const contents = thing.cls === 'AttributeDefinition' ? 'Name()' : 'Contents()';
    const place = placeOfText(heldOf(thing, 'Justify()', 0) || heldOf(thing, 'Justification()', 0) || '');
    const point = place !== 10 && firstValues(thing, 'AlignmentPoint()', 2) || firstValues(thing, 'Position()', 2);
    return point ? [textPrimitive(point, valueOr(thing, 'Height()', 1), valueOr(thing, 'Rotation()', 0), place,
        String(heldOf(thing, contents, 0) || ''))] : [];
}

// A line each, without the codes of formats.
function drawNote(thing) {
    const point = firstValues(thing, 'Position()', 2);
    const height = valueOr(thing, 'TextHeight()', 1);
    const angle = valueOr(thing, 'Rotation()', 0);
    const place = placeOfText(heldOf(thing, 'Justify()', 0) || 'TopLeft');
    const texts = (thing.held.get('Text()') || ['']).join('\\P').split('\\P')
        .map(text => text.replace(/\\[A-OQ-Za-z][^;\\]*;|[{}]/g, ''));
    const step = height * lineDistance * valueOr(thing, 'LineSpaceFactor()', 1);
    const above = (texts.length - 1) * Math.floor((place - 1) / 3) / 2; // lines above the point
    return point ? texts.map((text, i) => textPrimitive([point[0] + (i - above) * step * Math.sin(angle),
        point[1] - (i - above) * step * Math.cos(angle)], height, angle, place, text)) : [];
}

function drawPoint(thing) {
    const point = firstValues(thing, 'Position()', 2);
    return point ? [{shape: shapes.point, numbers: point}] : [];
}

// Those of what it measures, too.
function definingPoints(thing) {
    const points = [];
    for (const [question, values] of thing.held) {
        const [value] = values;
        if (value instanceof Thing && /^(?:Line[12]|Curve)\(/.test(question)) {
            points.push(...definingPoints(value));
        } else if (/^\w*(?:Point|Position|Center|Corner|Coordinate)\(/.test(question) && values.length < 4) {
            const point = firstValues(thing, question, 2);
            points.push(...point ? [point] : []);
        }
    }
    return points;
}

function drawPoints(thing) {
    const points = definingPoints(thing);
    return points.length > 1 ? [{shape: shapes.path, numbers: pathOf(points)}]
        : points.map(point => ({shape: shapes.point, numbers: point}));
}

const drawers = {Line: lineBetween(shapes.line, 'FirstPoint()', 'SecondPoint()'),
    Ray: lineBetween(shapes.ray, 'BasePoint()', 'ThroughPoint()'),
    InfiniteLine: lineBetween(shapes.xline, 'FirstPoint()', 'SecondPoint()'),
    Circle: drawArc, CircleArc: drawArc, EllipseArc: drawEllipse, Point: drawPoint, PolyLine: drawPolyline,
    PolyLine3D: drawPolyline, Spline: drawSpline, Solid: drawSolid, Trace: drawSolid, Face: drawFace,
    SimpleNote: drawSimpleNote, AttributeDefinition: drawSimpleNote, Note: drawNote};

// Primitives {shape, numbers}, of texts with their `text` in place of its number.
function primitivesOf(thing) {
    const draw = drawers[thing.cls] || drawPoints;
    return draw(thing).filter(({numbers}) => numbers.every(number => Number.isFinite(number)));
}
