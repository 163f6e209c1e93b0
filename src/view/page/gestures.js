// What hands do with the picture, told to whoever shows it in pixels of the page: {move(dx, dy), zoom(factor, x, y),
// choose(x, y, reach, isAgain), fit(x, y), point(x, y), leave()}.

'use strict';

const mouseReach = 8;
const touchReach = 20;
const mouseSlip = 3; // what moves no farther is a click
const touchSlip = 10;
const keyMove = 60;
const keyZoom = 1.25;

class Gestures {
    constructor(stage, canvas, told) {
        this.canvas = canvas;
        this.told = told;
        this.pointers = new Map();
        this.isClick = false;
        canvas.addEventListener('pointerdown', event => this.down(event));
        canvas.addEventListener('pointermove', event => this.moved(event));
        canvas.addEventListener('pointerup', event => this.up(event));
        canvas.addEventListener('pointercancel', event => this.drop(event));
        canvas.addEventListener('pointerleave', () => this.told.leave());
        canvas.addEventListener('wheel', event => this.wheel(event), {passive: false});
        canvas.addEventListener('dblclick', event => this.told.fit(...this.placeOf(event)));
        stage.addEventListener('keydown', event => this.key(event, stage));
    }

    placeOf(event) {
        const frame = this.canvas.getBoundingClientRect();
        return [event.clientX - frame.left, event.clientY - frame.top];
    }

    down(event) {
        if (event.button > 1) {
            return;
        }
        this.canvas.setPointerCapture(event.pointerId);
        const [x, y] = this.placeOf(event);
        this.pointers.set(event.pointerId, {x: x, y: y, startX: x, startY: y});
        this.isClick = this.pointers.size === 1 && event.button === 0;
        this.slip = event.pointerType === 'mouse' ? mouseSlip : touchSlip;
    }

    moved(event) {
        const pointer = this.pointers.get(event.pointerId);
        const [x, y] = this.placeOf(event);
        if (!pointer) {
            if (event.pointerType !== 'touch') {
                this.told.point(x, y);
            }
            return;
        }
        if (this.isClick && Math.hypot(x - pointer.startX, y - pointer.startY) <= this.slip) {
            return;
        }
        this.isClick = false;
        const others = [...this.pointers.values()].filter(one => one !== pointer);
        if (others.length === 1) {
            this.pinch(pointer, others[0], x, y);
        } else if (!others.length) {
            this.told.move(x - pointer.x, y - pointer.y);
        }
        pointer.x = x;
        pointer.y = y;
    }

    // The middle of both fingers moves the picture, and their distance its size.
    pinch(pointer, other, x, y) {
        const before = Math.hypot(pointer.x - other.x, pointer.y - other.y);
        const after = Math.hypot(x - other.x, y - other.y);
        this.told.move((x - pointer.x) / 2, (y - pointer.y) / 2);
        if (before > 0 && after > 0) {
            this.told.zoom(after / before, (x + other.x) / 2, (y + other.y) / 2);
        }
    }

    up(event) {
        const wasDown = this.pointers.has(event.pointerId);
        this.drop(event);
        if (wasDown && this.isClick) {
            const [x, y] = this.placeOf(event);
            this.told.choose(x, y, event.pointerType === 'mouse' ? mouseReach : touchReach);
        }
    }

    drop(event) {
        this.pointers.delete(event.pointerId);
    }

    wheel(event) {
        event.preventDefault();
        const lines = event.deltaMode === 1 ? 16 : event.deltaMode === 2 ? 400 : 1;
        // A pinch on a pad comes as a wheel with the control key, in smaller steps.
        const change = -event.deltaY * lines * (event.ctrlKey ? 0.01 : 0.0016);
        this.told.zoom(Math.exp(Math.max(-1, Math.min(1, change))), ...this.placeOf(event));
    }

    key(event, stage) {
        if (event.target !== stage || event.ctrlKey || event.altKey || event.metaKey) {
            return;
        }
        const far = event.shiftKey ? 4 * keyMove : keyMove;
        const moves = {ArrowLeft: [far, 0], ArrowRight: [-far, 0], ArrowUp: [0, far], ArrowDown: [0, -far]};
        const zooms = {'+': keyZoom, '=': keyZoom, '-': 1 / keyZoom, _: 1 / keyZoom};
        if (moves[event.key]) {
            this.told.move(...moves[event.key]);
        } else if (zooms[event.key]) {
            this.told.zoom(zooms[event.key], stage.clientWidth / 2, stage.clientHeight / 2);
        } else {
            return;
        }
        event.preventDefault();
        event.stopPropagation();
    }
}
