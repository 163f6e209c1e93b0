// What lies over the picture: halos around what is chosen and what the pointer is at, and the name of what is chosen.

'use strict';

const mostHaloed = 2000; // primitives
const haloAlpha = 0.3;
const labelRoom = 14; // pixels of the page between what is chosen and its name

// The objects that a choice means: those that a command adds when it is chosen itself.
function objectsOfChoice(data, {step, object}) {
    if (object >= 0) {
        return [object];
    }
    const objects = [];
    for (let one = step; step >= 0 && one < data.steps.count && objects.length < mostHaloed &&
        (one === step || data.commandOf(one) === step); one++) {
        if (data.objectOfStep(one) >= 0) {
            objects.push(data.objectOfStep(one));
        }
    }
    return objects;
}

function titleOfObjects(data, objects) {
    return objects.length === 1 ? objectTitle(data, objects[0]) : countOf(objects.length, 'object');
}

class Marks {
    constructor(canvas, data, scene, painter) {
        Object.assign(this, {canvas: canvas, data: data, scene: scene, painter: painter});
        this.context = canvas.getContext('2d');
    }

    // `seen` is {view, space, step, density, palette}.
    show(chosen, hover, seen) {
        this.context.setTransform(1, 0, 0, 1, 0, 0);
        this.context.clearRect(0, 0, this.canvas.width, this.canvas.height);
        if (!sameValue(hover, chosen)) {
            this.halo(objectsOfChoice(this.data, hover), seen, 6, false);
        }
        const objects = objectsOfChoice(this.data, chosen);
        if (objects.length) {
            this.label(titleOfObjects(this.data, objects), this.halo(objects, seen, 9, true), seen);
        }
    }

    // Those of an object that are there now in the space that is shown, or where none is those that were last, or come
    // first.
    seenOf(object, {space, step}) {
        const {geometry} = this.scene;
        const all = this.scene.primitivesOf(object).filter(p => geometry.space[p] === space);
        const there = all.filter(p => this.scene.isThere(p, step));
        if (there.length || !all.length) {
            return {primitives: there, isThere: true};
        }
        const before = all.filter(p => geometry.from[p] < step);
        const farther = before.length ? Math.max : Math.min;
        const from = (before.length ? before : all).reduce((best, p) => farther(best, geometry.from[p]),
            before.length ? -1 : Infinity);
        return {primitives: all.filter(p => geometry.from[p] === from), isThere: false};
    }

    // Returns the box of what it has drawn. What is not there now is dashed.
    halo(objects, seen, width, isChosen) {
        const {context, scene} = this;
        const {view, density, palette} = seen;
        const mapping = Mapping.ofView(view);
        const window = {left: -20, bottom: -20, right: this.canvas.width + 20, top: this.canvas.height + 20};
        const box = new Box();
        const inPixels = new Box();
        const path = new Path2D();
        const frames = new Path2D();
        let count = 0;
        let isDashed = false;
        for (const object of objects) {
            const {primitives, isThere} = this.seenOf(object, seen);
            isDashed = isDashed || !isThere;
            for (const p of primitives) {
                if (count++ < mostHaloed) {
                    box.addStored(scene.boxes, p);
                    this.painter.trace(path, frames, p, mapping, window, 4 * density);
                }
            }
        }
        context.lineJoin = context.lineCap = 'round';
        context.strokeStyle = context.fillStyle = palette.accent;
        context.globalAlpha = haloAlpha;
        context.lineWidth = width * density;
        context.setLineDash([]);
        if (!isDashed) {
            context.stroke(path);
        }
        context.fill(frames);
        context.globalAlpha = 1;
        if (isChosen || isDashed) {
            context.lineWidth = 2 * density;
            context.setLineDash(isDashed ? [5 * density, 5 * density] : []);
            context.stroke(path);
        }
        if (!box.isEmpty) {
            mapping.addBox(inPixels, box.left, box.bottom, box.right, box.top);
        }
        return inPixels;
    }

    label(text, box, {density, palette}) {
        const {context} = this;
        const {width: mostX, height: mostY} = this.canvas;
        if (box.isEmpty || box.right < 0 || box.left > mostX || box.top < 0 || box.bottom > mostY) {
            return;
        }
        context.font = '600 ' + 12.5 * density + 'px system-ui, sans-serif';
        context.textAlign = 'left';
        const shown = visibleText(text);
        const width = context.measureText(shown).width + 14 * density;
        const height = 22 * density;
        const room = labelRoom * density;
        const limited = (value, most) => Math.max(4 * density, Math.min(value, most - 4 * density));
        const x = limited(Math.min(box.right, mostX) - width / 2 + room, mostX - width);
        const above = box.bottom - height - room;
        const y = limited(above < 0 ? Math.min(box.top, mostY) + room : above, mostY - height);
        context.fillStyle = palette.accent;
        context.beginPath();
        roundedRectangle(context, x, y, width, height, 4 * density);
        context.fill();
        context.fillStyle = palette.pane;
        context.fillText(shown, x + 7 * density, y + 15.5 * density);
    }
}

function roundedRectangle(path, x, y, width, height, radius) {
    path.moveTo(x + radius, y);
    path.arcTo(x + width, y, x + width, y + height, radius);
    path.arcTo(x + width, y + height, x, y + height, radius);
    path.arcTo(x, y + height, x, y, radius);
    path.arcTo(x, y, x + width, y, radius);
    path.closePath();
}
