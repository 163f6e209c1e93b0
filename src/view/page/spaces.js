// The spaces of a recording: model space, sheets, and the definitions of blocks.

'use strict';

// A list of those that have something to show, and of the sheets that have not.
function spaceChooser(data, scene) {
    const {spaces} = data.index;
    const chooser = element('select', {class: 'spaces', 'aria-label': 'Space'});
    for (const [kind, title] of [['model', ''], ['sheet', 'Sheets'], ['block', 'Blocks']]) {
        const options = [];
        spaces.forEach((space, number) => {
            if (space.kind === kind && (kind !== 'block' || scene.members.of(number).length)) {
                options.push(element('option', {value: number}, visibleText(space.name)));
            }
        });
        if (options.length) {
            chooser.append(...title ? [element('optgroup', {label: title}, ...options)] : options);
        }
    }
    return chooser;
}

// The space that the recording ends in, or where nothing is in that one the fullest that is no definition.
function firstSpaceOf(data, scene, step) {
    const {index} = data;
    const isFull = space => !scene.extentsOf(space).isEmpty;
    const end = spaceAt(index, step);
    const others = [...index.spaces.keys()].filter(space => index.spaces[space].kind !== 'block' && isFull(space));
    const countOfSpace = space => scene.members.of(space).length;
    return isFull(end) || !others.length ? end
        : others.reduce((best, space) => countOfSpace(space) > countOfSpace(best) ? space : best);
}

// What the picture shows, in words.
function sentenceOfSpace(data, scene, space) {
    const box = scene.extentsOf(space);
    const counts = new Map();
    const seen = new Set();
    for (const p of scene.members.of(space)) {
        const object = scene.geometry.object[p];
        if (scene.geometry.until[p] === -1 && !seen.has(object)) {
            seen.add(object);
            const words = data.classWords(data.objects.cls[object]);
            counts.set(words, (counts.get(words) || 0) + 1);
        }
    }
    const parts = [...counts].sort((one, other) => other[1] - one[1]).map(
        ([words, count]) => count.toLocaleString('en') + ' ' + words);
    const name = visibleText(data.index.spaces[space].name);
    return name + ': ' + (parts.length ? parts.join(', ') + '; from ' + numbersOf(box.left, box.bottom) + ' to ' +
        numbersOf(box.right, box.top) : 'nothing drawn');
}

function numbersOf(...values) {
    return values.map(value => String(Number(value.toPrecision(7)))).join(', ');
}

// Why a space shows nothing.
function whyEmpty(data, scene, space) {
    if (scene.members.of(space).length) {
        return 'Nothing is shown here behind this step.';
    }
    if (scene.geometry.count) {
        return 'Nothing is drawn here.';
    }
    return data.index.counts.objects ? 'No object of the recording has geometry that can be drawn.'
        : 'The recording adds no objects.';
}

// What happens to the picture from one state of the slider to another: whether it only grows, and whether definitions
// of blocks change.
function changeBetween(data, scene, before, after) {
    const {from, until, space} = scene.geometry;
    const {spaces, layerSwitches} = data.index;
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
