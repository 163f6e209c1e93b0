// The colors and strokes of the picture, from the page's palette.

'use strict';

const paletteNames = ['pane', 'ink', 'muted', 'grid', 'line', 'accent', 'dimension', 'there', 'equal', 'missing',
    'surplus', 'different'];
const lightPalette = {pane: '#ffffff', ink: '#17202b', muted: '#566171', grid: '#ffffff', gridMain: '#ffffff',
    line: '#d3dae3', accent: '#0a5bc4', dimension: '#39536f', there: '#838e9c', equal: '#0f766e',
    missing: '#c2410c', surplus: '#a21caf', different: '#ad1f2d'};

// By name as the canvas writes them; system colors too, which are the palette where colors are forced.
function readPalette(element, context) {
    const style = getComputedStyle(element);
    const isForced = matchMedia('(forced-colors: active)').matches;
    const system = {pane: 'Canvas', ink: 'CanvasText', muted: 'CanvasText', grid: 'Canvas', line: 'GrayText',
        accent: 'Highlight', dimension: 'CanvasText', there: 'GrayText', equal: 'CanvasText',
        missing: 'CanvasText', surplus: 'LinkText', different: 'Highlight'};
    const palette = {};
    for (const name of paletteNames) {
        context.fillStyle = '#808080';
        context.fillStyle = isForced ? system[name] : style.getPropertyValue('--' + name).trim();
        palette[name] = context.fillStyle;
    }
    palette.gridMain = isForced ? palette.grid : textOfColor(mixedColors(palette.grid, palette.line, 0.45));
    return palette;
}

function mixedColors(one, other, share) {
    const parts = partsOfColor(other);
    return partsOfColor(one).map((value, i) => Math.round(value + (parts[i] - value) * share));
}

// Of what became of an object in a comparison, by its number; not by the color alone.
function comparisonStrokes(palette) {
    const plain = {color: palette.equal, width: 1.4, dash: []};
    const missing = {color: palette.missing, width: 1.8, dash: [6, 5]};
    const aside = {color: palette.there, width: 1, dash: []};
    return [aside, plain, {color: palette.different, width: 1.8, dash: [10, 4, 2, 4]}, missing,
        {color: palette.surplus, width: 1.8, dash: [0.1, 4]}, {color: palette.missing, width: 1.8, dash: [2, 5]},
        {color: palette.muted, width: 1.2, dash: []}];
}

// The brushes of a painter: what was there, the kinds of a comparison, and those of the styles, each once.
function brushesOf(index, palette) {
    const paper = partsOfColor(palette.pane);
    const brushes = [{color: palette.there, width: 1, dash: []}, ...comparisonStrokes(palette)];
    const numbers = new Map();
    brushes.ofStyles = index.styles.map(style => {
        const layer = index.layers[style.layer];
        const isObject = style.role === 'object';
        const roleColor = isObject ? palette.ink : style.role === 'dimension' ? palette.dimension : palette.muted;
        const color = recordedColor(style.color, layer.color, roleColor, paper);
        const inherits = style.color === 'byblock' || style.color === 'bylayer' && layer.name === '0';
        const key = [color, isObject, inherits].join();
        if (!numbers.has(key)) {
            numbers.set(key, brushes.push({color: color, width: isObject ? 1.4 : 1, dash: [], inherits: inherits}) - 1);
        }
        return numbers.get(key);
    });
    return brushes;
}
