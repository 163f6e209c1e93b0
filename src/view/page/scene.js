// Where the primitives of a recording lie and which of them are there behind a step; nothing here needs a canvas.

'use strict';

const muchOfSpace = 0.2; // of which on trying all is faster than sorting those that the grid finds

class Scene {
    constructor(geometry, objects, spaceCount, textOf) {
        this.geometry = geometry;
        this.objects = objects;
        this.textOf = textOf;
        this.members = new Members(geometry.space, spaceCount);
        this.boxes = boxesOf(geometry, this.members, spaceCount, textOf);
        this.grids = new Array(spaceCount).fill(null);
        this.byObject = null;
        this.found = new Int32Array(geometry.count);
    }

    static ofData(data) {
        return new Scene(data.geometry, data.objects, data.index.spaces.length, number => data.text(number));
    }

    // An object's primitives.
    primitivesOf(object) {
        if (!this.byObject) {
            this.byObject = new Members(this.geometry.object, this.objects.count);
        }
        return this.byObject.of(object);
    }

    gridOf(space) {
        if (!this.grids[space]) {
            const members = this.members.of(space);
            this.grids[space] = {grid: new Grid(this.boxes, members),
                endless: members.filter(p => isEndless(this.geometry.shape[p]))};
        }
        return this.grids[space];
    }

    // The primitives of a space that may be seen in a box, in their order.
    within(space, box) {
        const {grid, endless} = this.gridOf(space);
        if (grid.shareOf(box) > muchOfSpace) {
            return this.members.of(space).filter(p => isEndless(this.geometry.shape[p]) || this.meets(p, box));
        }
        const count = grid.query(box.left, box.bottom, box.right, box.top, this.found);
        const items = new Int32Array(count + endless.length);
        items.set(this.found.subarray(0, count));
        items.set(endless, count);
        return items.sort();
    }

    meets(p, box) {
        const {boxes} = this;
        return boxes[4 * p] <= box.right && boxes[4 * p + 2] >= box.left && boxes[4 * p + 1] <= box.top &&
            boxes[4 * p + 3] >= box.bottom;
    }

    // The primitives of a space that come between two steps.
    comers(space, before, after) {
        const {from} = this.geometry;
        return this.members.of(space).filter(p => from[p] >= before && from[p] < after);
    }

    // At a step of the slider, which is the number of steps that are done.
    isThere(p, step) {
        const {from, until} = this.geometry;
        return (from[p] === -1 || from[p] < step) && (until[p] === -1 || until[p] >= step);
    }

    // Whether it is of something that was there before the recording.
    isOld(p) {
        return this.objects.added[this.geometry.object[p]] === -1;
    }

    // Around what a space shows behind the last step, or where that is nothing around all that it ever has shown.
    extentsOf(space) {
        const end = new Box();
        const ever = new Box();
        for (const p of this.members.of(space)) {
            ever.addStored(this.boxes, p);
            if (this.geometry.until[p] === -1) {
                end.addStored(this.boxes, p);
            }
        }
        return end.isEmpty ? ever : end;
    }

    boxOfObjects(objects, space) {
        const box = new Box();
        for (const object of objects) {
            for (const p of this.primitivesOf(object)) {
                if (this.geometry.space[p] === space) {
                    box.addStored(this.boxes, p);
                }
            }
        }
        return box;
    }
}

// Which layers are not shown behind a step: those that the recording has switched off, and those of the page's reader.
function hiddenLayersAt(index, step, hidden) {
    const layers = new Uint8Array(index.layers.length);
    for (const change of index.layerSwitches) {
        if (change.step < step) {
            layers[change.layer] = change.visible ? 0 : 1;
        }
    }
    for (const layer of hidden) {
        if (typeof layer === 'number') {
            layers[layer] = 1;
        }
    }
    return layers;
}

function spaceAt(index, step) {
    return index.spaceSwitches.reduce((space, change) => change.step < step ? change.space : space, index.firstSpace);
}

// What a picture shows of a scene.
class Visibility {
    constructor(scene, index, step, hidden) {
        this.scene = scene;
        this.step = step;
        this.styles = index.styles;
        this.layers = hiddenLayersAt(index, step, hidden);
        this.hidesOld = hidden.has('there');
    }

    shows(p) {
        return this.scene.isThere(p, this.step) && !this.layers[this.styles[this.scene.geometry.style[p]].layer] &&
            !(this.hidesOld && this.scene.isOld(p));
    }
}

// Takes lines and knows how near they come to a point, and whether the loops that they make hold it.
class Measure {
    // Begins anew, for a point.
    of(x, y) {
        this.x = x;
        this.y = y;
        this.distance = Infinity;
        this.isInside = false;
        this.startX = this.startY = this.lastX = this.lastY = NaN;
        return this;
    }

    moveTo(x, y) {
        this.cross(this.startX, this.startY);
        this.startX = this.lastX = x;
        this.startY = this.lastY = y;
    }

    lineTo(x, y) {
        const dx = x - this.lastX;
        const dy = y - this.lastY;
        const length = dx * dx + dy * dy;
        const along = length ? ((this.x - this.lastX) * dx + (this.y - this.lastY) * dy) / length : 0;
        const share = Math.min(1, Math.max(0, along));
        const apartX = this.lastX + share * dx - this.x;
        const apartY = this.lastY + share * dy - this.y;
        this.distance = Math.min(this.distance, Math.sqrt(apartX * apartX + apartY * apartY));
        this.cross(x, y);
        this.lastX = x;
        this.lastY = y;
    }

    cross(x, y) {
        if ((this.lastY > this.y) !== (y > this.y) &&
            this.x < this.lastX + (this.y - this.lastY) / (y - this.lastY) * (x - this.lastX)) {
            this.isInside = !this.isInside;
        }
    }

    end() {
        this.cross(this.startX, this.startY);
    }
}

// Finds what is near a point of the picture. A curve comes before an inside, and a small box before a large one.
class Picker {
    constructor(scene, visibility) {
        this.scene = scene;
        this.visibility = visibility;
        this.measure = new Measure();
        this.near = {left: 0, bottom: 0, right: 0, top: 0};
    }

    // Objects within reach of a pixel, the nearest first.
    objectsAt(space, view, x, y, reach) {
        const mapping = Mapping.ofView(view);
        const {found} = this.scene;
        const {grid, endless} = this.scene.gridOf(space);
        const count = grid.queryPoint(view.x + x / view.scale, view.y - y / view.scale, reach / view.scale, found);
        const nearest = new Map();
        for (let i = 0; i < count + endless.length; i++) {
            const p = i < count ? found[i] : endless[i - count];
            const distance = this.distanceTo(p, mapping, x, y, reach);
            const object = this.scene.geometry.object[p];
            if (distance <= reach && !(nearest.get(object) <= distance)) {
                nearest.set(object, distance);
            }
        }
        return [...nearest.keys()].sort((a, b) => nearest.get(a) - nearest.get(b) || b - a);
    }

    // In pixels; what is farther than the reach may have any distance that is farther.
    distanceTo(p, mapping, x, y, reach, depth = 0) {
        const {geometry, boxes} = this.scene;
        const {numbers} = geometry;
        const first = geometry.first[p];
        if (!this.visibility.shows(p)) {
            return Infinity;
        }
        const measure = this.measure.of(x, y);
        Object.assign(this.near, {left: x - reach, bottom: y - reach, right: x + reach, top: y + reach});
        switch (geometry.shape[p]) {
        case Shapes.point:
            return Math.hypot(mapping.x(numbers[first], numbers[first + 1]) - x,
                mapping.y(numbers[first], numbers[first + 1]) - y);
        case Shapes.ray:
        case Shapes.xline:
            traceEndless(measure, mapping, this.near, geometry, p);
            return measure.distance;
        case Shapes.text:
            traceText(measure, mapping, numbers, first, this.scene.textOf(numbers[first + 6]));
            break;
        case Shapes.window:
            traceRectangle(measure, mapping, boxes.subarray(4 * p, 4 * p + 4));
            return measure.distance;
        case Shapes.reference:
            return this.distanceToReferred(p, mapping, x, y, reach, depth);
        default:
            new Tracer(measure, mapping, this.near, true).primitive(geometry, p);
            if (geometry.shape[p] !== Shapes.area && geometry.shape[p] !== Shapes.pattern) {
                return measure.distance;
            }
        }
        measure.end();
        return measure.isInside ? Math.min(measure.distance, reach * 0.75) : measure.distance;
    }

    distanceToReferred(p, mapping, x, y, reach, depth) {
        const {geometry, members, boxes} = this.scene;
        const first = geometry.first[p];
        const inner = mapping.referred(geometry.numbers, first);
        const around = new Box();
        let distance = Infinity;
        if (depth >= deepestNesting) {
            return distance;
        }
        for (const member of members.of(geometry.numbers[first + 6])) {
            around.clear();
            inner.addBox(around, ...boxes.subarray(4 * member, 4 * member + 4));
            if (around.left <= x + reach && around.right >= x - reach && around.bottom <= y + reach &&
                around.top >= y - reach) {
                distance = Math.min(distance, this.distanceTo(member, inner, x, y, reach, depth + 1));
            }
        }
        return distance;
    }
}
