// What the drawing tells of an added object beside its record.

'use strict';

// Of a note the drawing has the number, from 1.
const attachments = [].concat(...['Top', 'Middle', 'Bottom'].map(row => ['Left', 'Center', 'Right'].map(
    column => row + ' ' + column)));

function holdDrawn(recorded, one) {
    const drawn = recorded.drawing.get(one.handle) || {};
    const {action, handle} = one;
    const hold = (question, index, value, tag) => one.hold(question, index, value, tag, action);
    for (const [key, value] of Object.entries(drawn)) {
        const row = recorded.places.row(one.cls, '.' + key, true);
        if (row) {
            hold(row.name + '()', 0, value, key);
        }
    }
    const block = recorded.drawing.get(drawn.blockTableRecord) || {};
    if (block.isFromExternalReference) {
        hold('Path()', 0, block.pathName || '', 'pathName');
    }
    if (recorded.drawing.has(drawn.annotationObjectId)) {
        annotate(recorded, recorded.drawing.get(drawn.annotationObjectId),
            (name, value, tag) => hold(name + '()', 0, value, tag));
    }
    let corner = 0;
    (drawn.faces || []).forEach((face, number) => {
        const corners = face.filter(vertex => vertex);
        hold('FaceCount(' + number + ')', 0, corners.length, 'faces');
        corners.forEach(vertex => hold('Face(' + corner++ + ')', 0, vertex, 'faces'));
        hold('Count()', 0, (drawn.vertices || []).length, 'vertices');
    });
    if (/Diametric|Radial/.test(one.cls) && drawn.chordPoint) {
        const {chordPoint, farChordPoint} = drawn;
        const center = farChordPoint ? chordPoint.map((value, axis) => (value + farChordPoint[axis]) / 2)
            : drawn.center;
        (center || []).forEach((value, axis) => hold('Curve.Center()', axis, value, 'center'));
        hold('Curve.Radius()', 0, Math.hypot(...chordPoint.map((value, axis) => value - center[axis])), 'radius');
    }
    if (one.cls === 'AcDbBlockTableRecord') {
        (drawn.origin || [0, 0, 0]).forEach((value, axis) => hold('Position()', axis, value, 'origin'));
        hold('Description()', 0, drawn.comments || '', 'comments');
    }
    if (one.cls === 'AcDbMlineStyle' && drawn.elements && !recorded.told.of(action.key).properties.has('elements')) {
        linesOfStyle(handle, drawn.elements, style => recorded.nameOf(style)).forEach(call =>
            recorded.operations.push(Object.assign({action: action}, call)));
    }
}

// What stands at the end of a leader.
function annotate(recorded, annotation, hold) {
    if (annotation.class === 'AcDbFcf') {
        hold('ToleranceAnnotation', annotation.text || '', 'text');
    } else if (annotation.class === 'AcDbBlockReference') {
        hold('BlockAnnotation', recorded.nameOf(annotation.blockTableRecord), 'blockTableRecord');
    } else if (annotation.class === 'AcDbMText') {
        const {textHeight = 0, lineSpacingFactor = 1, attachment = 1, backgroundScaleFactor = anything} = annotation;
        const note = {TextHeight: textHeight, LineSpaceFactor: lineSpacingFactor,
            LineSpaceDistance: textHeight * lineSpacingFactor * 5 / 3, Justify: attachments[attachment - 1],
            Width: annotation.width || 0, Rotation: annotation.rotation || 0,
            BackgroundMask: annotation.backgroundFillOn || false,
            UseDrawingBackgroundColor: annotation.useBackgroundColorOn || false,
            BackgroundBorderOffsetFactor: backgroundScaleFactor};
        if ('backgroundFillColor' in annotation) {
            note.BackgroundFillColor = {color: annotation.backgroundFillColor};
        }
        if ('textStyle' in annotation) {
            note.TextStyle = recorded.nameOf(annotation.textStyle);
        }
        Object.entries(note).forEach(([name, value]) => hold('NoteAnnotation.' + name, value, name));
    }
}
