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

// Gives each call of a run the line that it comes of. Macros go straight on: the n-th call is the n-th place, and where
// a condition passes some over, or a loop comes back, the next or the last one of its name.
function giveLines(calls, places) {
    const byName = new Map(places.map(place => [place.name, []]));
    for (let at = places.length - 1; at >= 0; --at) {
        byName.get(places[at].name).push(at); // the next one is at the end
    }
    let next = 0;
    for (const call of calls) {
        const ahead = byName.get(call.name) || [];
        while (ahead.length > 1 && ahead[ahead.length - 1] < next) {
            ahead.pop();
        }
        const at = ahead.length ? ahead[ahead.length - 1] : -1;
        call.line = at >= 0 ? places[at].line : null;
        next = Math.max(next, at + 1);
    }
}

// What tells lines from others, the surest first, and how often it may occur: of calls that differ in nothing else only
// the order is left. Texts twice, since what occurs more often may still occur once between two others.
const beginningOf = line => line.split('(', 1)[0].trim().replace(/^(?:var|let|const)\s+/, '');
const calledOf = line => line.includes('(') ? /\w*$/.exec(beginningOf(line))[0] : line;
const likenesses = [[line => line, 1], [line => line, 1], [beginningOf, Infinity], [calledOf, Infinity]];

// The n-th with the n-th of the keys that both sides have as often, in the order of the second side.
function pairEqual(ours, theirs, most) {
    const byKey = new Map(ours.map(key => [key, [[], []]]));
    [ours, theirs].forEach((side, which) => side.forEach((key, at) => (byKey.get(key) || [[], []])[which].push(at)));
    return [...byKey.values()].filter(([a, b]) => a.length === b.length && a.length <= most)
        .flatMap(([a, b]) => a.map((at, n) => [at, b[n]])).sort((one, other) => one[1] - other[1]);
}

// The most of the pairs that rise on both sides, the last one first.
function longestRising(pairs) {
    const ends = []; // of the runs of each length the one that ends lowest
    for (const pair of pairs) {
        let [low, high] = [0, ends.length];
        while (low < high) {
            const middle = Math.floor((low + high) / 2);
            [low, high] = ends[middle].pair[0] < pair[0] ? [middle + 1, high] : [low, middle];
        }
        ends[low] = {pair: pair, before: ends[low - 1]};
    }
    const run = [];
    for (let end = ends[ends.length - 1]; end; end = end.before) {
        run.push(end.pair);
    }
    return run;
}

// For each line of an edited macro the line of the written one that it is or stands in place of, or 0. Lines from 1;
// the first entry is none.
function alignLines(written, edited) {
    const found = new Array(edited.length + 1).fill(0);
    const taken = new Set();
    const pair = (i, j) => {
        found[j + 1] = i + 1;
        taken.add(i);
    };
    const open = ([a, b]) => [a.filter(i => !taken.has(i)), b.filter(j => !found[j + 1])];
    let gaps = [[[...written.keys()], [...edited.keys()]]]; // what is between the lines that were found
    for (const [keyOf, most] of likenesses) {
        const [ours, theirs] = [written.map(keyOf), edited.map(keyOf)];
        const cut = [];
        for (const gap of gaps) {
            const least = Math.min(gap[0].length, gap[1].length);
            for (let n = 0; n < least && ours[gap[0][n]] === theirs[gap[1][n]]; ++n) {
                pair(gap[0][n], gap[1][n]);
            }
            const [a, b] = open(gap);
            while (a.length && b.length && ours[a[a.length - 1]] === theirs[b[b.length - 1]]) {
                pair(a.pop(), b.pop());
            }
            const pairs = pairEqual(a.map(i => ours[i]), b.map(j => theirs[j]), most);
            const run = longestRising(pairs);
            // Others that are the same were moved.
            pairs.filter(([n, m]) => written[a[n]] === edited[b[m]]).concat(run).forEach(([n, m]) => pair(a[n], b[m]));
            run.forEach(([n, m]) => cut.push([a.splice(n), b.splice(m)]));
            cut.push([a, b]);
        }
        gaps = cut.map(open).filter(([a, b]) => a.length && b.length);
    }
    gaps.filter(([a, b]) => a.length === b.length).forEach(([a, b]) => a.forEach((i, n) => pair(i, b[n])));
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
                addTo(this.byAction, key, range);
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
