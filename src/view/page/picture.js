// The pane of the picture.

'use strict';

const mostHaloed = 2000; // primitives
const mostListed = 300; // objects that are not drawn
const doubleClick = 350; // milliseconds
const printedSize = [3272, 2244]; // of A4 landscape within margins of 10 mm, at 300 dots an inch
const printedDensity = 300 / 96;
const labelRoom = 14; // pixels between what is chosen and its name

class Picture {
    constructor(data, pane) {
        this.data = data;
        this.pane = pane;
        this.scene = Scene.ofData(data);
        this.painter = new ScenePainter(this.scene);
        this.views = new Map(); // by space, as they were left
        this.fitted = new Set(); // spaces of which all is shown, in whatever size
        this.lastChoice = {time: 0, objects: [], at: 0};
        this.version = 0;
        this.density = window.devicePixelRatio || 1;
        this.makeElements();
        this.keptPicture = new KeptPicture(this.canvas,
            (context, view, width, height, from) => this.painting(context, view, width, height, from),
            view => this.composed(view));
        this.gestures = new Gestures(this.stage, this.canvas, this);
        this.listen();
    }

    makeElements() {
        const {data} = this;
        this.canvas = element('canvas', {class: 'pictureCanvas', role: 'img'});
        this.marks = element('canvas', {class: 'pictureMarks', 'aria-hidden': 'true'});
        this.place = element('p', {class: 'picturePlace', 'aria-hidden': 'true'});
        this.barText = element('span', {});
        this.bar = element('p', {class: 'pictureBar', 'aria-hidden': 'true'}, this.barText);
        this.none = element('p', {class: 'pictureNone', hidden: true});
        this.layers = new LayerList(data);
        const tool = (text, title, act) => button(text, {'aria-label': title, title: title}, act);
        this.stage = element('div', {class: 'stage', tabindex: 0, role: 'group', 'aria-label':
            'Picture: arrows move it, plus and minus zoom, F shows all'}, this.canvas, this.marks,
            element('div', {class: 'tools'}, tool('\u2922', 'Show all ( f )', () => this.fitAll()),
                tool('+', 'Zoom in ( + )', () => this.zoomMiddle(keyZoom)),
                tool('\u2212', 'Zoom out ( \u2212 )', () => this.zoomMiddle(1 / keyZoom))),
            this.layers.element, this.none, this.place, this.bar);
        const panel = element('div', {class: 'comparison', hidden: true});
        this.chosenLine = button('', {class: 'chosenLine', hidden: true}, () => state.set({pane: 'steps'}, 'picture'));
        this.slider = new Slider(data);
        this.pane.append(this.head(), this.stage, panel, this.chosenLine, this.slider.element);
        this.panel = new ComparisonPanel(data, panel);
    }

    head() {
        const {spaces} = this.data.index;
        this.spaces = element('select', {class: 'spaces', 'aria-label': 'Space'});
        for (const [kind, title] of [['model', ''], ['sheet', 'Sheets'], ['block', 'Blocks']]) {
            const options = [];
            spaces.forEach((space, number) => {
                if (space.kind === kind && (kind !== 'block' || this.scene.members.of(number).length)) {
                    options.push(element('option', {value: number}, visibleText(space.name)));
                }
            });
            if (options.length) {
                this.spaces.append(...title ? [element('optgroup', {label: title}, ...options)] : options);
            }
        }
        this.spaces.addEventListener('change', () => state.set({space: Number(this.spaces.value)}, 'picture'));
        const modes = element('div', {class: 'segments', role: 'group', 'aria-label': 'What is shown'});
        this.modes = ['recorded', 'compared'].map(mode => button(mode === 'recorded' ? 'Recorded' : 'Compared',
            {'data-mode': mode}, () => state.set({mode: mode}, 'picture')));
        modes.append(...this.modes);
        modes.hidden = !['recorded', 'repaired', 'edited'].some(form => {
            const one = this.data.formOf('javascript', form);
            return one && one.status === 0;
        });
        return element('div', {class: 'paneHead'}, element('h2', {}, 'Drawing'), this.spaces, this.notDrawn(),
            element('span', {class: 'filler'}), modes);
    }

    // What the picture does not show, each with its reason.
    notDrawn() {
        const {data} = this;
        const {objects} = data;
        const missing = [];
        const partly = [];
        for (let i = 0; i < objects.count; i++) {
            if (objects.hasGeometry[i] && !objects.isDrawn[i]) {
                missing.push(i);
            } else if (objects.remark[i]) {
                partly.push(i);
            }
        }
        const box = element('details', {class: 'notDrawn', hidden: !missing.length && !partly.length});
        const title = missing.length ? missing.length.toLocaleString('en') + ' not drawn'
            : partly.length.toLocaleString('en') + ' drawn in part';
        box.append(element('summary', {class: missing.length ? 'badge lost' : 'badge plain'}, title));
        box.addEventListener('toggle', () => {
            if (box.open && box.children.length === 1) {
                box.append(this.listOfNotDrawn(missing, partly));
            }
        });
        box.addEventListener('keydown', event => {
            if (event.key === 'Escape' && box.open) {
                box.open = false;
                box.firstChild.focus();
                event.stopPropagation();
            }
        });
        return box;
    }

    listOfNotDrawn(missing, partly) {
        const list = element('div', {class: 'notDrawnList'});
        for (const [title, objects] of [['Not drawn', missing], ['Drawn in part', partly]]) {
            if (objects.length) {
                const rows = objects.slice(0, mostListed).map(object => element('li', {}, this.remarkOf(object)));
                if (objects.length > mostListed) {
                    rows.push(element('li', {class: 'muted'},
                        'and ' + (objects.length - mostListed).toLocaleString('en') + ' more'));
                }
                list.append(element('h3', {}, title), element('ul', {}, ...rows));
            }
        }
        return list;
    }

    remarkOf(object) {
        const {data} = this;
        const remark = data.objects.remark[object];
        const made = button('', {class: 'finding'},
            () => state.set({chosen: {step: data.stepOfObject(object), object: object}}, 'picture'));
        made.append(classIcon(data.className(data.objects.cls[object])),
            textElement('span', {class: 'findingName'}, this.nameOf(object)), textElement('span',
                {class: 'findingReason'}, remark ? data.index.remarks[remark - 1] : 'its geometry is not recorded'));
        return made;
    }

    nameOf(object) {
        return this.data.classWords(this.data.objects.cls[object]) + ' ' + this.data.objects.handle(object);
    }

    listen() {
        state.on(['step'], () => this.stepped());
        state.on(['space'], () => this.showSpace());
        state.on(['hidden', 'mode', 'run'], () => this.restyle());
        state.on(['chosen'], (values, source) => this.choiceChanged(values.chosen, source));
        state.on(['hover'], () => this.keptPicture.touch());
        for (const query of ['(prefers-color-scheme: dark)', '(forced-colors: active)']) {
            matchMedia(query).addEventListener('change', () => this.readColors());
        }
        new ResizeObserver(() => this.resize()).observe(this.stage);
        window.addEventListener('resize', () => this.resize());
        document.addEventListener('keydown', event => this.key(event));
        paneActs.picture = {focus: () => this.stage.focus(), center: () => this.center()};
        document.addEventListener('click', event => {
            const box = this.pane.querySelector('.notDrawn');
            if (box.open && !box.contains(event.target)) {
                box.open = false;
            }
        });
        this.shownStep = state.get().step;
        this.space = this.firstSpace();
        state.set({space: this.space}, 'picture');
        this.readColors();
        this.showMode();
        this.showSpace();
    }

    readColors() {
        this.palette = readPalette(this.stage, this.marks.getContext('2d'));
        this.brushes = brushesOf(this.data.index, this.palette);
        this.keptPicture.ground = this.palette.pane;
        this.layers.color(this.palette);
        this.slider.drawTicks();
        this.restyle();
    }

    resize() {
        const density = window.devicePixelRatio || 1;
        const width = Math.round(this.stage.clientWidth * density);
        const height = Math.round(this.stage.clientHeight * density);
        if (!width || !height || width === this.width && height === this.height) {
            return;
        }
        const [oldWidth, oldHeight] = [this.width || width, this.height || height];
        this.marks.width = this.width = width;
        this.marks.height = this.height = height;
        this.views.forEach((view, space) => this.views.set(space,
            resizedView(view, oldWidth, oldHeight, width, height, density / this.density)));
        this.fitted.forEach(space => this.views.delete(space));
        this.density = density;
        this.keptPicture.resize(width, height);
        this.showSpaceView();
    }

    // The state as a painter needs it.
    look(from, width, height) {
        const {mode, run, step, hidden} = state.get();
        const kinds = mode === 'compared' ? comparedKinds(run) : null;
        const {spaces} = this.data.index;
        return {visibility: new Visibility(this.scene, this.data.index, step, hidden), brushes: this.brushes, kinds: kinds,
            space: this.space, density: this.density, width: width, height: height, from: from, version: this.version,
            modelSpace: Math.max(0, spaces.findIndex(space => space.kind === 'model'))};
    }

    *painting(context, view, width, height, from) {
        const look = this.look(from, width, height);
        if (from < 0) {
            paintGround(context, view, width, height, this.palette, this.density);
        }
        yield* this.painter.paint(context, view, look);
        if (look.kinds && from < 0) {
            yield* this.paintDrawn(context, view, look);
        }
    }

    // What a macro has drawn of its own.
    *paintDrawn(context, view, look) {
        const {run} = state.get();
        if (this.drawnOf !== run) {
            this.drawnOf = run;
            this.drawnScene = sceneOfDrawn(run.drawn, this.data.index.spaces.length);
        }
        const scene = this.drawnScene;
        const dotted = this.brushes[brushKinds.comparison + 4];
        const brushes = Object.assign(this.brushes.slice(), {ofStyles: this.brushes.ofStyles});
        brushes[brushKinds.comparison + 2] = dotted; // recorded otherwise, which its own stroke shows
        yield* new ScenePainter(scene).paint(context, view, Object.assign({}, look, {brushes: brushes,
            kinds: Uint8Array.from(run.drawn, one => one.kind), visibility: {shows: () => true}}));
    }

    // What happens to the picture from one state of the slider to another: whether it only grows, and whether definitions
    // of blocks change.
    changeBetween(before, after) {
        const {from, until, space} = this.scene.geometry;
        const {spaces, layerSwitches} = this.data.index;
        const [low, high] = [Math.min(before, after), Math.max(before, after)];
        const isWithin = step => step >= low && step < high;
        let grows = after > before && !layerSwitches.some(({step}) => isWithin(step));
        let defines = false;
        for (let p = 0; p < from.length; p++) {
            const goes = until[p] >= low && until[p] < high;
            if (goes || from[p] >= low && from[p] < high) {
                grows = grows && !(goes && from[p] < low);
                defines = defines || spaces[space[p]].kind === 'block';
            }
        }
        return {grows: grows, defines: defines};
    }

    stepped() {
        const {step} = state.get();
        const before = this.shownStep;
        this.shownStep = step;
        const space = spaceAt(this.data.index, step);
        if (space !== spaceAt(this.data.index, before)) {
            state.set({space: space}, 'picture');
        }
        const {grows, defines} = this.changeBetween(before, step);
        const isAlone = this.data.index.spaces[this.space].kind !== 'sheet'; // which may show model space
        this.version += defines ? 1 : 0;
        this.tellNothing();
        if (grows && isAlone && !defines) {
            this.keptPicture.extend(before);
        } else {
            this.keptPicture.renew();
        }
    }

    restyle() {
        this.version++;
        this.showMode();
        this.tellNothing();
        this.keptPicture.renew();
    }

    showMode() {
        this.modes.forEach(one => one.setAttribute('aria-pressed', one.dataset.mode === state.get().mode));
    }

    showSpace() {
        this.space = state.get().space;
        this.spaces.value = this.space;
        this.canvas.setAttribute('aria-label', this.sentence(this.scene.extentsOf(this.space)));
        this.tellNothing();
        if (this.width) {
            this.showSpaceView();
        }
    }

    showSpaceView() {
        if (this.views.has(this.space)) {
            this.showView(this.view);
        } else {
            this.fitAll();
        }
        this.keptPicture.renew();
    }

    // Says why the picture is empty.
    tellNothing() {
        const {scene, data} = this;
        const {step, hidden} = state.get();
        const visibility = new Visibility(scene, data.index, step, hidden);
        this.none.hidden = scene.members.of(this.space).some(p => visibility.shows(p));
        if (!this.none.hidden) {
            this.none.textContent = scene.members.of(this.space).length ? 'Nothing is shown here behind this step.'
                : scene.geometry.count ? 'Nothing is drawn here.'
                    : data.index.counts.objects ? 'No object of the recording has geometry that can be drawn.'
                        : 'The recording adds no objects.';
        }
    }

    // The space that the recording ends in, or where nothing is in that one the fullest that is no definition.
    firstSpace() {
        const {index} = this.data;
        const isFull = space => !this.scene.extentsOf(space).isEmpty;
        const end = spaceAt(index, state.get().step);
        const others = [...index.spaces.keys()].filter(space => index.spaces[space].kind !== 'block' && isFull(space));
        const countOfSpace = space => this.scene.members.of(space).length;
        return isFull(end) || !others.length ? end
            : others.reduce((best, space) => countOfSpace(space) > countOfSpace(best) ? space : best);
    }

    // What the picture shows, in words.
    sentence(box) {
        const {data, scene} = this;
        const counts = new Map();
        const seen = new Set();
        for (const p of scene.members.of(this.space)) {
            const object = scene.geometry.object[p];
            if (scene.geometry.until[p] === -1 && !seen.has(object)) {
                seen.add(object);
                const words = data.classWords(data.objects.cls[object]);
                counts.set(words, (counts.get(words) || 0) + 1);
            }
        }
        const parts = [...counts].sort((one, other) => other[1] - one[1]).map(
            ([words, count]) => count.toLocaleString('en') + ' ' + words);
        const name = visibleText(data.index.spaces[this.space].name);
        return name + ': ' + (parts.length ? parts.join(', ') + '; from ' + numbersOf(box.left, box.bottom) + ' to ' +
            numbersOf(box.right, box.top) : 'nothing drawn');
    }

    viewOfAll() {
        const box = this.scene.extentsOf(this.space);
        return fittingView(box.isEmpty ? {left: 0, bottom: 0, right: 100, top: 100} : box, this.width, this.height);
    }

    showView(view) {
        this.fitted.delete(this.space);
        this.views.set(this.space, view);
        this.keptPicture.show(view);
    }

    get view() {
        return this.views.get(this.space);
    }

    fitAll() {
        this.showView(this.viewOfAll());
        this.fitted.add(this.space);
    }

    fitChosen() {
        const box = this.scene.boxOfObjects(this.objectsOf(state.get().chosen), this.space);
        if (!box.isEmpty) {
            const view = fittingView(box, this.width * 0.6, this.height * 0.6);
            this.showView(movedView(view, this.width * 0.2, this.height * 0.2));
        }
    }

    center() {
        const box = this.scene.boxOfObjects(this.objectsOf(state.get().chosen), this.space);
        if (!box.isEmpty) {
            const {scale} = this.view;
            this.showView({x: (box.left + box.right) / 2 - this.width / 2 / scale,
                y: (box.bottom + box.top) / 2 + this.height / 2 / scale, scale: scale});
        }
    }

    // Wherever the focus is, but where the key means something else.
    key(event) {
        if (event.defaultPrevented || event.altKey || event.ctrlKey || event.metaKey || isField(event.target)
            || byId('help').open) {
            return;
        }
        const acts = {f: () => this.fitAll(), F: () => this.fitChosen(), '[': () => this.chooseNext(-1),
            ']': () => this.chooseNext(1)};
        const takesSpace = event.target.closest && event.target.closest(
            'button, summary, input:not([type=range]), [role=tab], [role=separator]');
        const act = event.key === ' ' && !takesSpace ? () => this.slider.toggle() : acts[event.key];
        if (act) {
            act();
            event.preventDefault();
        }
    }

    // What the gestures tell, in pixels of the page.
    move(dx, dy) {
        this.showView(movedView(this.view, dx * this.density, dy * this.density));
    }

    zoom(factor, x, y) {
        this.showView(zoomedView(this.view, factor, x * this.density, y * this.density));
    }

    zoomMiddle(factor) {
        this.zoom(factor, this.stage.clientWidth / 2, this.stage.clientHeight / 2);
    }

    objectsAt(x, y, reach) {
        const {step, hidden} = state.get();
        return new Picker(this.scene, new Visibility(this.scene, this.data.index, step, hidden)).objectsAt(this.space,
            this.view, x * this.density, y * this.density, reach * this.density);
    }

    choose(x, y, reach) {
        const now = performance.now();
        const last = this.lastChoice;
        if (now - last.time < doubleClick) {
            return;
        }
        const objects = this.objectsAt(x, y, reach);
        const isAgain = last.objects.length > 1 && objects.length === last.objects.length &&
            objects.every((object, i) => object === last.objects[i]) && state.get().chosen.object === objects[last.at];
        const at = isAgain ? (last.at + 1) % objects.length : 0;
        this.lastChoice = {time: now, objects: objects, at: at};
        this.chooseObject(objects.length ? objects[at] : -1);
    }

    chooseObject(object) {
        state.set({chosen: object < 0 ? nothingChosen : {step: this.data.stepOfObject(object), object: object}},
            'picture');
    }

    fit() {
        if (state.get().chosen.object >= 0) {
            this.fitChosen();
        } else {
            this.fitAll();
        }
    }

    // The next object of the space in the order of drawing, or the one before.
    chooseNext(direction) {
        const {geometry} = this.scene;
        const {step} = state.get();
        const objects = new Set();
        for (const p of this.scene.members.of(this.space)) {
            if (this.scene.isThere(p, step)) {
                objects.add(geometry.object[p]);
            }
        }
        const all = [...objects];
        if (all.length) {
            const at = all.indexOf(state.get().chosen.object);
            const next = at < 0 ? (direction > 0 ? 0 : all.length - 1) : (at + direction + all.length) % all.length;
            this.chooseObject(all[next]);
        }
    }

    point(x, y) {
        const [worldX, worldY] = [this.view.x + x * this.density / this.view.scale,
            this.view.y - y * this.density / this.view.scale];
        const digits = Math.max(0, Math.min(8, Math.ceil(Math.log10(this.view.scale / this.density)) + 1));
        this.place.textContent = 'x ' + worldX.toFixed(digits) + ' y ' + worldY.toFixed(digits);
        const [object] = this.objectsAt(x, y, mouseReach);
        this.canvas.style.cursor = object === undefined ? '' : 'pointer';
        state.set({hover: object === undefined ? nothingChosen
            : {step: this.data.stepOfObject(object), object: object}}, 'picture');
    }

    leave() {
        this.place.textContent = '';
        state.set({hover: nothingChosen}, 'picture');
    }

    // The objects that a choice means: those that a command adds when it is chosen itself.
    objectsOf({step, object}) {
        if (object >= 0) {
            return [object];
        }
        const {data} = this;
        const objects = [];
        for (let one = step; step >= 0 && one < data.steps.count && objects.length < mostHaloed &&
            (one === step || data.commandOf(one) === step); one++) {
            if (data.objectOfStep(one) >= 0) {
                objects.push(data.objectOfStep(one));
            }
        }
        return objects;
    }

    choiceChanged(chosen, source) {
        const objects = this.objectsOf(chosen);
        this.chosenLine.hidden = !objects.length;
        if (objects.length) {
            const step = chosen.step >= 0 ? ', line ' + this.data.steps.line[chosen.step] : '';
            putText(empty(this.chosenLine), this.titleOf(objects) + step);
        }
        if (source !== 'picture' && objects.length) {
            this.bringIntoSight(objects);
        }
        this.keptPicture.touch();
    }

    titleOf(objects) {
        return objects.length === 1 ? this.nameOf(objects[0]) : countOf(objects.length, 'object');
    }

    // Moves the picture only when nothing of what is chosen can be seen.
    bringIntoSight(objects) {
        const {geometry} = this.scene;
        const primitives = this.scene.primitivesOf(objects[0]);
        if (primitives.length && primitives.every(p => geometry.space[p] !== this.space)) {
            const kind = this.data.index.spaces[geometry.space[primitives[0]]].kind;
            if (kind !== 'block') {
                state.set({space: geometry.space[primitives[0]]}, 'picture');
            }
        }
        const box = this.scene.boxOfObjects(objects, this.space);
        if (!this.width || box.isEmpty) {
            return;
        }
        const seen = new Box();
        Mapping.ofView(this.view).addBox(seen, box.left, box.bottom, box.right, box.top);
        if (seen.right < 0 || seen.left > this.width || seen.top < 0 || seen.bottom > this.height) {
            this.center();
        }
    }

    // Halos, the name of what is chosen, and the scale bar, over each picture.
    composed(view) {
        const context = this.marks.getContext('2d');
        context.setTransform(1, 0, 0, 1, 0, 0);
        context.clearRect(0, 0, this.width, this.height);
        const {chosen, hover} = state.get();
        const chosenObjects = this.objectsOf(chosen);
        const hovered = this.objectsOf(hover);
        if (hovered.length && !sameValue(hover, chosen)) {
            this.halo(context, view, hovered, 6, 0.28, false);
        }
        if (chosenObjects.length) {
            const box = this.halo(context, view, chosenObjects, 9, 0.3, true);
            this.label(context, box, this.titleOf(chosenObjects));
        }
        this.showBar(view);
    }

    // Those of an object that are there now in the space that is shown, or where none is those that were last, or come
    // first.
    seenOf(object) {
        const {geometry} = this.scene;
        const {step} = state.get();
        const all = this.scene.primitivesOf(object).filter(p => geometry.space[p] === this.space);
        const there = all.filter(p => this.scene.isThere(p, step));
        if (there.length || !all.length) {
            return {primitives: there, isThere: true};
        }
        const before = all.filter(p => geometry.from[p] < step);
        const froms = Array.from(before.length ? before : all, p => geometry.from[p]);
        const from = before.length ? Math.max(...froms) : Math.min(...froms);
        return {primitives: all.filter(p => geometry.from[p] === from), isThere: false};
    }

    // Returns the box of what it has drawn. What is not there now is dashed.
    halo(context, view, objects, width, alpha, isChosen) {
        const {density, palette, scene} = this;
        const mapping = Mapping.ofView(view);
        const window = {left: -20, bottom: -20, right: this.width + 20, top: this.height + 20};
        const box = new Box();
        const seen = new Box();
        const path = new Path2D();
        const frames = new Path2D();
        let count = 0;
        let isDashed = false;
        for (const object of objects) {
            const {primitives, isThere} = this.seenOf(object);
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
        context.globalAlpha = alpha;
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
            mapping.addBox(seen, box.left, box.bottom, box.right, box.top);
        }
        return seen;
    }

    label(context, box, text) {
        if (box.isEmpty || box.right < 0 || box.left > this.width || box.top < 0 || box.bottom > this.height) {
            return;
        }
        const {density, palette} = this;
        context.font = '600 ' + 12.5 * density + 'px system-ui, sans-serif';
        context.textAlign = 'left';
        const shown = visibleText(text);
        const width = context.measureText(shown).width + 14 * density;
        const height = 22 * density;
        const room = labelRoom * density;
        const limited = (value, most) => Math.max(4 * density, Math.min(value, most - 4 * density));
        const x = limited(Math.min(box.right, this.width) - width / 2 + room, this.width - width);
        const above = box.bottom - height - room;
        const y = limited(above < 0 ? Math.min(box.top, this.height) + room : above, this.height - height);
        context.fillStyle = palette.accent;
        context.beginPath();
        roundedRectangle(context, x, y, width, height, 4 * density);
        context.fill();
        context.fillStyle = palette.pane;
        context.fillText(shown, x + 7 * density, y + 15.5 * density);
    }

    // All of the space that is shown, on paper. A canvas is printed as it is, while an image would have to be decoded
    // first, for which printing does not wait.
    print(into) {
        const [width, height] = printedSize;
        const box = this.scene.extentsOf(this.space);
        if (box.isEmpty) {
            return;
        }
        const canvas = element('canvas', {width: width, height: height});
        const shown = {brushes: this.brushes, palette: this.palette, density: this.density};
        Object.assign(this, {brushes: brushesOf(this.data.index, lightPalette), palette: lightPalette,
            density: printedDensity});
        this.version++;
        const steps = this.painting(canvas.getContext('2d', {alpha: false}), fittingView(box, width, height), width, height,
            -1);
        while (!steps.next().done) {
            // There is no time to give way.
        }
        Object.assign(this, shown);
        this.version++;
        empty(into).append(canvas);
    }

    showBar(view) {
        const length = roundStep(32 * this.density / view.scale);
        this.barText.textContent = String(Number(length.toPrecision(1)));
        this.bar.style.width = (length * view.scale / this.density) + 'px';
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

function numbersOf(...values) {
    return values.map(value => String(Number(value.toPrecision(7)))).join(', ');
}

function openPicture(data) {
    const picture = new Picture(data, byId('picture'));
    window.addEventListener('beforeprint', () => picture.print(byId('printedPicture')));
    window.addEventListener('afterprint', () => empty(byId('printedPicture')));
    return picture;
}
