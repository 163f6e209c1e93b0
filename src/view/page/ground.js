// The paper that the picture is drawn on.

'use strict';

// Steps of 1, 2 and 5 times a power of ten.
function roundStep(least) {
    const power = 10 ** Math.floor(Math.log10(least));
    return [1, 2, 5, 10].map(step => step * power).find(step => step >= least * (1 - 1e-12));
}

// The paper and its grid. Lines that would lie on the same doubles, as they do far from the origin, are left out.
function paintGround(context, view, width, height, palette, density) {
    context.fillStyle = palette.pane;
    context.fillRect(0, 0, width, height);
    const step = roundStep(14 * density / view.scale);
    context.lineWidth = Math.max(1, Math.floor(density));
    context.setLineDash([]);
    for (const [every, color] of [[1, palette.grid], [5, palette.gridMain]]) {
        context.strokeStyle = color;
        context.beginPath();
        const pixel = step * every * view.scale;
        const firstColumn = Math.ceil(view.x / (step * every));
        for (let n = 0, x; (x = (firstColumn * step * every - view.x) * view.scale + n * pixel) < width; n++) {
            context.moveTo(Math.round(x) + 0.5, 0);
            context.lineTo(Math.round(x) + 0.5, height);
        }
        const firstRow = Math.floor(view.y / (step * every));
        for (let n = 0, y; (y = (view.y - firstRow * step * every) * view.scale + n * pixel) < height; n++) {
            context.moveTo(0, Math.round(y) + 0.5);
            context.lineTo(width, Math.round(y) + 0.5);
        }
        context.stroke();
    }
}
