// A picture on a canvas that answers at once: a gesture moves a picture that is kept, larger than the view, and a new
// one is drawn in slices when the gesture rests or leaves the kept one.
//
// A canvas puts off what it is told to draw until it is needed, and would then do all at once. Reading a pixel makes it
// draw; so kept canvases are of the kind that is often read.

'use strict';

const keptShare = 1.5; // of the view, in each direction
const mostPixels = 24e6; // of a kept picture; a larger one is as large as the view
const restTime = 80; // milliseconds
const sliceTime = 8;
const firstSlice = 150; // of a picture that nothing is seen before, while other panes open too
const firstTime = 120; // between two states of that one
const quickTime = 7; // a picture that takes no longer is drawn anew at once

class KeptPicture {
    // `paint(context, view, width, height, from)` makes the generator that draws; `from` is a step since which alone
    // is drawn, or -1 for all. `shown(view)` is called with each picture that comes to the canvas.
    constructor(canvas, paint, shown) {
        this.canvas = canvas;
        this.context = canvas.getContext('2d', {alpha: false});
        this.paint = paint;
        this.shown = shown;
        this.view = null;
        this.kept = null;
        this.spare = null;
        this.painting = null;
        this.isStale = false;
        this.restsAt = 0;
        this.took = 0; // milliseconds for the last whole picture
        this.isWaiting = false; // for the next frame
        this.goesOn = false; // between frames
        this.composedAt = 0;
        this.channel = new MessageChannel();
        this.channel.port1.onmessage = () => this.goOn();
    }

    resize(width, height) {
        this.canvas.width = width;
        this.canvas.height = height;
        const share = width * height * keptShare * keptShare > mostPixels ? 1 : keptShare;
        this.size = {width: Math.ceil(width * share), height: Math.ceil(height * share)};
        this.kept = this.spare = this.painting = null;
    }

    // Another view of the same.
    show(view) {
        this.view = view;
        this.isStale = true;
        this.restsAt = performance.now() + (this.took <= quickTime ? 0 : restTime);
        this.wake();
    }

    // Something else is to be seen. A picture that is being drawn comes to its end, so that one is seen now and then
    // while a slider moves.
    renew() {
        this.isStale = true;
        this.restsAt = 0;
        this.wake();
    }

    // What is being drawn is of no use.
    restart() {
        this.painting = null;
        this.renew();
    }

    // Nothing of what was drawn is to be seen again.
    forget() {
        this.spare = this.spare || this.kept;
        this.kept = null;
        this.restart();
    }

    // The same with what has come since a step.
    extend(from) {
        if (!this.kept || this.isStale || this.painting) {
            this.renew();
            return;
        }
        this.begin(this.kept, from);
        this.wake();
    }

    // What lies over the picture has changed.
    touch() {
        this.wake();
    }

    wake() {
        if (!this.isWaiting && this.view) {
            this.isWaiting = true;
            requestAnimationFrame(() => {
                this.isWaiting = false;
                this.frame(performance.now());
            });
        }
    }

    frame(now) {
        const isLost = !this.kept || !this.covers(this.kept.view);
        if (this.isStale && !this.painting && (now >= this.restsAt || isLost)) {
            const {width, height} = this.size;
            this.begin(this.spare || this.newPicture(), -1);
            this.painting.picture.view = movedView(this.view, (width - this.canvas.width) / 2,
                (height - this.canvas.height) / 2);
            this.isStale = false;
        }
        if (this.painting) {
            this.slice();
        }
        this.compose();
        this.plan();
    }

    // While no gesture goes on, one slice follows the other, with room for what else happens.
    plan() {
        if (this.painting && performance.now() >= this.restsAt) {
            if (!this.goesOn) {
                this.goesOn = true;
                this.channel.port2.postMessage(null);
            }
        } else if (this.painting || this.isStale) {
            this.wake();
        }
    }

    goOn() {
        this.goesOn = false;
        if (this.painting && performance.now() >= this.restsAt) {
            this.slice();
        }
        if (!this.painting || !this.kept && performance.now() - this.composedAt > firstTime) {
            this.wake();
        }
        this.plan();
    }

    newPicture() {
        const canvas = document.createElement('canvas');
        canvas.width = this.size.width;
        canvas.height = this.size.height;
        return {canvas: canvas, context: canvas.getContext('2d', {alpha: false, willReadFrequently: true}), view: null};
    }

    covers(view) {
        return coversView(view, this.size.width, this.size.height, this.view, this.canvas.width, this.canvas.height);
    }

    begin(picture, from) {
        this.painting = {picture: picture, from: from, steps: null, took: 0};
    }

    slice() {
        const {painting} = this;
        const {picture} = painting;
        const start = performance.now();
        painting.steps = painting.steps || this.paint(picture.context, picture.view, this.size.width, this.size.height,
            painting.from);
        const isQuick = this.took <= 2 * sliceTime;
        const until = start + (!this.kept ? firstSlice : isQuick ? 2 * sliceTime : sliceTime);
        let isDone = false;
        do {
            isDone = painting.steps.next().done;
            picture.context.getImageData(0, 0, 1, 1);
        } while (!isDone && performance.now() < until);
        painting.took += performance.now() - start;
        if (!isDone) {
            return;
        }
        this.painting = null;
        if (picture !== this.kept) {
            this.took = painting.took;
            this.spare = this.kept;
            this.kept = picture;
        }
    }

    // The first picture of something is seen while it grows.
    compose() {
        const {context, view} = this;
        const kept = this.kept || this.painting && this.painting.picture;
        this.composedAt = performance.now();
        if (kept) {
            const ratio = view.scale / kept.view.scale;
            const x = (kept.view.x - view.x) * view.scale;
            const y = (view.y - kept.view.y) * view.scale;
            if (!this.covers(kept.view)) {
                context.fillStyle = this.ground;
                context.fillRect(0, 0, this.canvas.width, this.canvas.height);
            }
            if (ratio === 1) {
                context.drawImage(kept.canvas, Math.round(x), Math.round(y));
            } else {
                context.drawImage(kept.canvas, x, y, this.size.width * ratio, this.size.height * ratio);
            }
        }
        this.shown(view);
    }
}
