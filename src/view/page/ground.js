// The paper that the picture is drawn on.

'use strict';

// Steps of 1, 2 and 5 times a power of ten.
function roundStep(least) {
    const power = 10 ** Math.floor(Math.log10(least));
    return [1, 2, 5, 10].map(step => step * power).find(step => step >= least * (1 - 1e-12));
}

// Calls back with the pixels at which lines of a distance cross an axis that begins at a coordinate. Where doubles are
// too coarse to tell where the first one is, it is somewhere in the first distance.
function gridLines(start, step, scale, length, draw) {
    const distance = step * scale;
    const first = (Math.ceil(start / step) * step - start) * scale % distance;
    for (let at = first < 0 ? first + distance : first; at < length; at += distance) {
        draw(Math.round(at) + 0.5);
    }
}

function paintGround(context, view, width, height, palette, density) {
    context.fillStyle = palette.pane;
    context.fillRect(0, 0, width, height);
    const step = roundStep(14 * density / view.scale);
    context.lineWidth = Math.max(1, Math.floor(density));
    context.setLineDash([]);
    for (const [every, color] of [[1, palette.grid], [5, palette.gridMain]]) {
        context.strokeStyle = color;
        context.beginPath();
        gridLines(view.x, every * step, view.scale, width, x => {
            context.moveTo(x, 0);
            context.lineTo(x, height);
        });
        gridLines(-view.y, every * step, view.scale, height, y => {
            context.moveTo(0, y);
            context.lineTo(width, y);
        });
        context.stroke();
    }
}
