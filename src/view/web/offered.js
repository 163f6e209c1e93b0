// The objects of a recording's drawing as a macro finds them when it runs: the answers to what it asks of them, and the
// curves by which a window finds them.

'use strict';

function chain(vertices) {
    return [{vertices: vertices}];
}

function circularArc(center, radius, start, end) {
    return {center: center, major: [radius, 0, 0], minor: [0, radius, 0], start: start, end: end};
}

// A segment of a polyline. Its bulge is the tangent of a quarter of the arc's angle, negative when it runs clockwise.
function segment(from, to, bulge, elevation) {
    const [start, end] = [[...from, elevation], [...to, elevation]];
    const chord = [to[0] - from[0], to[1] - from[1]];
    if (!bulge || Math.hypot(...chord) === 0) {
        return {vertices: [start, end]};
    }
    const offset = (1 / bulge - bulge) / 4; // of the center from the chord's middle, in chords
    const center = [(from[0] + to[0]) / 2 - chord[1] * offset, (from[1] + to[1]) / 2 + chord[0] * offset, elevation];
    const angle = point => Math.atan2(point[1] - center[1], point[0] - center[0]);
    const [first, last] = bulge > 0 ? [from, to] : [to, from];
    return circularArc(center, Math.hypot(from[0] - center[0], from[1] - center[1]), angle(first), angle(last));
}

function vertexAnswers(points) {
    const answers = {};
    points.forEach((point, index) => { answers['VertexCoordinate(' + index + ')'] = point; });
    return answers;
}

function closed(points, isClosed) {
    return isClosed && points.length > 1 ? points.concat([points[0]]) : points;
}

const offeredClasses = {
    AcDbLine: {cls: 'Line', type: 'iwLineType', number: 21, describe: ({startPoint, endPoint}) => ({
        answers: {'FirstPoint()': startPoint, 'SecondPoint()': endPoint}, curves: chain([startPoint, endPoint])})},
    AcDbCircle: {cls: 'Circle', type: 'iwCircleType', number: 22, describe: ({center, radius}) => ({
        answers: {'Center()': center, 'Radius()': [radius]}, curves: [circularArc(center, radius, 0, 0)]})},
    AcDbArc: {cls: 'CircleArc', type: 'iwCircleArcType', number: 23, describe: data => ({
        answers: {'Center()': data.center, 'Radius()': [data.radius], 'StartAngle()': [data.startAngle],
            'EndAngle()': [data.endAngle]},
        curves: [circularArc(data.center, data.radius, data.startAngle, data.endAngle)]})},
    AcDbEllipse: {cls: 'EllipseArc', type: 'iwEllipseArcType', number: 26, describe: data => ({
        answers: {'Center()': data.center, 'MajorRadius()': [Math.hypot(...data.majorAxis)],
            'MinorRadius()': [Math.hypot(...data.minorAxis)]},
        curves: [{center: data.center, major: data.majorAxis, minor: data.minorAxis, start: data.startAngle,
            end: data.endAngle}]})},
    AcDbPolyline: {cls: 'PolyLine', type: 'iwPolyLineType', number: 27, describe: ({points, bulges, isClosed}) => ({
        answers: vertexAnswers(points),
        curves: closed(points, isClosed).slice(1).map((point, i) => segment(points[i], point, bulges[i], 0))})},
    AcDb3dPolyline: {cls: 'PolyLine3D', type: 'iwPolyLine3DType', number: 65, describe: ({vertices, isClosed}) => ({
        answers: vertexAnswers(vertices), curves: chain(closed(vertices, isClosed))})}
};
const noData = {startPoint: [0, 0, 0], endPoint: [0, 0, 0], center: [0, 0, 0], radius: 0, startAngle: 0, endAngle: 0,
    majorAxis: [0, 0, 0], minorAxis: [0, 0, 0], points: [], bulges: [], vertices: [], isClosed: false};

function described(record) {
    return offeredClasses[record.class].describe(Object.assign({}, noData, record));
}

// What an object of the drawing answers, as far as it is known.
function answersOf(record) {
    return record.class in offeredClasses ? described(record).answers : {};
}

// `lines` are those of the recording, parsed.
function drawnRecords(lines) {
    return lines.filter(line => line && line.object).map(line => line.object);
}

function hasData(record) {
    return Object.keys(record).length > 2;
}

// All objects of the drawing for which the interface has a class.
function listedObjects(lines, places) {
    const known = record => record.class !== 'AcDbTable' ? hasData(record) ? answersOf(record) : {}
        : {'Rows()': [(record.rowHeights || []).length], 'Columns()': [(record.columnWidths || []).length]};
    return drawnRecords(lines).map(one => ({handle: one.handle, cls: places.interfaceOf(one), name: one.name || '',
        answers: known(one)})).filter(one => one.cls);
}

// Those that a window may meet: objects without data are not offered.
function offeredObjects(lines) {
    return drawnRecords(lines).filter(one => one.class in offeredClasses && hasData(one)).map(one => {
        const {cls, type, number} = offeredClasses[one.class];
        return Object.assign({handle: one.handle, cls: cls, type: type, number: number}, described(one));
    });
}
