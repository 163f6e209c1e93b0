// Small drawings for classes and kinds of steps.

'use strict';

const iconPaths = {
    line: 'M3 15 15 3', circle: 'M15 9a6 6 0 1 1-12 0 6 6 0 0 1 12 0Z', arc: 'M3 14A11 11 0 0 1 14 3',
    ellipse: 'M16 9c0 2.2-3.1 4-7 4s-7-1.8-7-4 3.1-4 7-4 7 1.8 7 4Z', polyline: 'M2 14 6 5l6 7 4-9',
    spline: 'M2 13C6 1 11 17 16 5', point: 'M9 4v10M4 9h10', ray: ['M3 15 15 3', 'M10 3h5v5'],
    text: ['M4 5V3h10v2', 'M9 3v12M7 15h4'], dimension: ['M3 4v10M15 4v10M3 9h12', 'M6 7 3 9l3 2M12 7l3 2-3 2'],
    angle: ['M14 3 4 15h11', 'M9 9a7 7 0 0 1 3 6'],
    radius: ['M15 9a6 6 0 1 1-12 0 6 6 0 0 1 12 0Z', 'M9 9l3.5-3.5M10 5.5h2.5V8'],
    leader: ['M3 15l5-8h7', 'M3 11v4l3.6-1.6'], tolerance: 'M2 6h14v6H2ZM7 6v6M12 6v6',
    hatch: ['M3 3h12v12H3Z', 'M3 9l6-6M3 15 15 3M9 15l6-6'], table: 'M3 4h12v10H3ZM3 8h12M9 4v10',
    block: ['M9 2l6 3.5v7L9 16l-6-3.5v-7Z', 'M3 5.5 9 9l6-3.5M9 9v7'],
    image: ['M3 4h12v10H3Z', 'M3 12l4-4 3 3 2-2 3 3'], viewport: ['M2 3h14v12H2Z', 'M5 6h8v6H5Z'],
    face: 'M3 13 7 4l9 2-4 9Z', mesh: ['M3 13 7 4l9 2-4 9Z', 'M5 8.5l9 2M11.5 5l-4 9'],
    layer: 'M9 3l7 4-7 4-7-4ZM2 10l7 4 7-4', group: ['M2 2h9v9H2Z', 'M7 7h9v9H7Z'], style: 'M3 5h12M3 9h7M3 13h3',
    sheet: 'M4 2h7l3 3v11H4ZM11 2v3h3',
    view: ['M2 9c3.5-6 10.5-6 14 0-3.5 6-10.5 6-14 0Z', 'M9 7a2 2 0 1 1 0 4 2 2 0 0 1 0-4Z'],
    command: 'M3 5l4 4-4 4M9 13h6', change: ['M3 15l1-4 8-8 3 3-8 8Z', 'M10 5l3 3'],
    variable: ['M6 3C3 3 5 8 3 9c2 1 0 6 3 6', 'M12 3c3 0 1 5 3 6-2 1 0 6-3 6'], prompt: 'M3 4h12v8H9l-3 3v-3H3Z',
    selection: ['M3 3h4M3 3v4M15 3h-4M15 3v4M3 15h4M3 15v-4M15 15h-4M15 15v-4'], custom: 'M10 2 4 10h4l-1 6 7-9h-4Z',
    other: 'M9 3l6 6-6 6-6-6Z', none: 'M4 9h10'
};

const iconsOfClasses = [
    [/Dimension.*Angular|Angular.*Dimension|ArcDimension/, 'angle'], [/Radial|Diametric|Jogged/, 'radius'],
    [/DimStyle|StyleTableRecord|TableStyle|Style$|Linetype/, 'style'], [/Dimension|DimAssoc/, 'dimension'],
    [/ArcAlignedText|MText|Text$|Attribute/, 'text'], [/Leader/, 'leader'], [/Fcf/, 'tolerance'], [/Hatch/, 'hatch'],
    [/Layer/, 'layer'], [/Group/, 'group'], [/Layout|Sheet/, 'sheet'], [/Viewport/, 'viewport'], [/View/, 'view'],
    [/Block/, 'block'], [/Image|Ole|Embed|Frame/, 'image'], [/Mesh/, 'mesh'], [/Face|Solid|Trace|Region/, 'face'],
    [/Polyline|Mline|RichLine/, 'polyline'], [/Spline|Helix/, 'spline'], [/Ellipse/, 'ellipse'], [/Circle/, 'circle'],
    [/Arc/, 'arc'], [/Ray|Xline|XLine/, 'ray'], [/Point/, 'point'], [/Line/, 'line'], [/Table/, 'table']
];

function iconNameOf(className) {
    const row = iconsOfClasses.find(([pattern]) => pattern.test(className));
    return row ? row[1] : 'other';
}

function namedIcon(name) {
    return icon(iconPaths[name]);
}

function classIcon(className) {
    return namedIcon(iconNameOf(className));
}

const iconsOfKinds = {command: 'command', modified: 'change', property: 'change', sysvar: 'variable',
    interaction: 'prompt', selection: 'selection', custom: 'custom', null: 'none'};

function stepIcon(data, step) {
    const kind = data.kindOf(step);
    return kind === 'added' ? classIcon(data.className(data.steps.cls[step])) : namedIcon(iconsOfKinds[kind]);
}
