// Which line of a macro a call comes of, and which action a line does.

'use strict';

// A line without what stands between quotes and behind a comment's sign.
function codeOf(line) {
    return line.replace(/"(?:[^"\\]|\\.)*"|'(?:[^'\\]|\\.)*'/g, '""').replace(/\/\/.*/, '');
}

// Where in a macro's text the calls of `names` stand, in their order: {name, line}, lines from 1.
function callPlaces(text, names) {
    const places = [];
    text.split('\n').forEach((line, index) => {
        if (line.includes('.')) {
            for (const called of codeOf(line).match(/\.\w+\s*\(/g) || []) {
                const name = /\w+/.exec(called)[0];
                if (names.has(name)) {
                    places.push({name: name, line: index + 1});
                }
            }
        }
    });
    return places;
}

// Gives each call of a run the line that it comes of. Macros go straight on: the n-th call is the n-th place, and where a
// condition passes some over, or a loop comes back, the next or the last one of its name.
function giveLines(calls, places) {
    let next = 0;
    for (const call of calls) {
        let at = next;
        while (at < places.length && places[at].name !== call.name) {
            ++at;
        }
        if (at === places.length) {
            at = next - 1;
            while (at >= 0 && places[at].name !== call.name) {
                --at;
            }
        }
        call.line = at >= 0 ? places[at].line : null;
        next = at >= next ? at + 1 : next;
    }
}

// For each line of an edited macro the line of the written one that it is or stands in place of, or 0. Lines from 1; the
// first entry is none.
function alignLines(written, edited) {
    const found = new Array(edited.length + 1).fill(0);
    const places = lines => {
        const map = new Map();
        lines.forEach((line, i) => map.set(line, map.has(line) ? -1 : i));
        return map;
    };
    // From `a` on in the one and `b` in the other, ahead of the ends.
    function align(a, aEnd, b, bEnd) {
        while (a < aEnd && b < bEnd && written[a] === edited[b]) {
            found[++b] = ++a;
        }
        while (a < aEnd && b < bEnd && written[aEnd - 1] === edited[bEnd - 1]) {
            found[bEnd--] = aEnd--;
        }
        if (a === aEnd || b === bEnd) {
            return;
        }
        const [ours, theirs] = [places(written.slice(a, aEnd)), places(edited.slice(b, bEnd))];
        for (const [line, at] of ours) {
            const other = theirs.get(line);
            if (at >= 0 && other >= 0 && line.trim() !== '') {
                align(a, a + at, b, b + other);
                align(a + at, aEnd, b + other, bEnd);
                return;
            }
        }
        for (let i = 0; b + i < bEnd; ++i) {
            found[b + i + 1] = Math.min(a + i, aEnd - 1) + 1;
        }
    }
    align(0, written.length, 0, edited.length);
    return found;
}

// The range of a map that each of its lines is in.
class Origins {
    constructor(map) {
        this.ranges = map.ranges;
        this.byAction = new Map();
        for (const range of map.ranges) {
            if (range.line !== undefined) {
                const key = actionKey(range.line, range.path);
                this.byAction.set(key, (this.byAction.get(key) || []).concat([range]));
            }
        }
    }

    // The range of an action that has the line, or undefined.
    rangeAt(line) {
        let [low, high] = [0, this.ranges.length - 1];
        while (low < high) {
            const middle = Math.floor((low + high + 1) / 2);
            [low, high] = this.ranges[middle].lines[0] <= line ? [middle, high] : [low, middle - 1];
        }
        const range = this.ranges[low];
        return range && range.line !== undefined && line >= range.lines[0] && line <= range.lines[1] ? range : undefined;
    }

    // The action that a line does, as its key, or empty text.
    actionAt(line) {
        const range = this.rangeAt(line);
        return range ? actionKey(range.line, range.path) : '';
    }

    // The handles that the lines of an action have.
    handlesOf(key) {
        return [].concat(...(this.byAction.get(key) || []).map(range => range.handles || []));
    }

    // The first and last line that do an action, or null. An insertion counts ahead of its declaration.
    linesOf(key) {
        const ranges = this.byAction.get(key) || [];
        const one = ranges.find(range => range.kind !== 'declaration') || ranges[0];
        return one ? one.lines : null;
    }
}
