// Differences of the repaired macro to the recorded one, as rows.

'use strict';

const linesAround = 2; // equal ones that stay above and below of a hunk

const mostWords = 200; // of a line that are compared one by one

// The parts of each of two lines that the other does not have, as ranges [from, to]: words that are not in the longest
// row of words that both have, and the spaces between them.
function changedParts(one, other) {
    const words = [one, other].map(text => text.match(/[\w\u00aa-\uffff]+|\s+|[^]/gu) || []);
    const ends = commonEnds(...words);
    const middles = words.map(list => list.slice(ends.head, list.length - ends.tail));
    const isLong = middles.some(list => list.length > mostWords);
    const kept = isLong ? middles.map(list => new Uint8Array(list.length)) : commonWords(...middles);
    return middles.map((list, side) =>
        rangesOfWords(list, kept[side], words[side].slice(0, ends.head).join('').length));
}

function rangesOfWords(words, kept, start) {
    const isChanged = i => !kept[i] || !words[i].trim() && kept[i - 1] === 0 && kept[i + 1] === 0;
    const ranges = [];
    let at = start;
    words.forEach((word, i) => {
        const last = ranges[ranges.length - 1];
        if (isChanged(i) && last && last.end === at) {
            Object.assign(last, {end: at + word.length, text: last.text + word});
        } else if (isChanged(i)) {
            ranges.push({from: at, end: at + word.length, text: word});
        }
        at += word.length;
    });
    return ranges.filter(({text}) => text.trim()).map(({from, end, text}) =>
        [from + text.length - text.trimStart().length, end - text.length + text.trimEnd().length]);
}

// How much two rows have in common at both ends.
function commonEnds(one, other) {
    const most = Math.min(one.length, other.length);
    let head = 0;
    while (head < most && one[head] === other[head]) {
        ++head;
    }
    let tail = 0;
    while (tail < most - head && one[one.length - 1 - tail] === other[other.length - 1 - tail]) {
        ++tail;
    }
    return {head: head, tail: tail};
}

// For each word of two rows 1 where it is in the longest common row.
function commonWords(one, other) {
    const width = other.length + 1;
    const lengths = new Uint16Array((one.length + 1) * width);
    for (let i = one.length - 1; i >= 0; --i) {
        for (let j = other.length - 1; j >= 0; --j) {
            lengths[i * width + j] = one[i] === other[j] ? lengths[(i + 1) * width + j + 1] + 1
                : Math.max(lengths[(i + 1) * width + j], lengths[i * width + j + 1]);
        }
    }
    const kept = [new Uint8Array(one.length), new Uint8Array(other.length)];
    for (let i = 0, j = 0; i < one.length && j < other.length;) {
        if (one[i] === other[j]) {
            kept[0][i++] = kept[1][j++] = 1;
        } else if (lengths[(i + 1) * width + j] >= lengths[i * width + j + 1]) {
            ++i;
        } else {
            ++j;
        }
    }
    return kept;
}

const differenceKinds = {equal: 0, removed: 1, added: 2, folded: 3};

// Rows of {kind, recorded, repaired}, numbers of lines from 1, 0 for none. In a folded one they begin what is folded,
// and `count` tells how many. Paired lines of a hunk stand below one another, and each knows the other's number.
class DifferenceRows {
    // Folds whose first line (of the recorded ones) is among `unfolded` are shown.
    constructor(hunks, recordedCount, repairedCount, unfolded = new Set()) {
        const numbers = [];
        this.hunkRows = []; // where each hunk begins
        const add = (kind, recorded, repaired, count) => numbers.push(kind, recorded, repaired, count);
        let recorded = 1;
        let repaired = 1;
        const addEqual = (count, isFirst, isLast) => {
            const above = isFirst ? 0 : linesAround;
            const below = isLast ? 0 : linesAround;
            const isFolded = count > above + below + 1 && !unfolded.has(recorded + above);
            for (let i = 0; i < count; ++i) {
                if (isFolded && i === above) {
                    add(differenceKinds.folded, recorded + i, repaired + i, count - above - below);
                    i = count - below - 1;
                } else {
                    add(differenceKinds.equal, recorded + i, repaired + i, 1);
                }
            }
            recorded += count;
            repaired += count;
        };
        hunks.forEach((hunk, which) => {
            addEqual(hunk.repaired[0] - repaired, which === 0, false);
            this.hunkRows.push(numbers.length / 4);
            const paired = Math.min(hunk.recorded[1], hunk.repaired[1]);
            for (let i = 0; i < Math.max(hunk.recorded[1], hunk.repaired[1]); ++i) {
                if (i < hunk.recorded[1]) {
                    add(differenceKinds.removed, recorded + i, i < paired ? repaired + i : 0, 1);
                }
                if (i < hunk.repaired[1]) {
                    add(differenceKinds.added, i < paired ? recorded + i : 0, repaired + i, 1);
                }
            }
            recorded += hunk.recorded[1];
            repaired += hunk.repaired[1];
        });
        addEqual(repairedCount - repaired + 1, hunks.length === 0, true);
        this.numbers = Uint32Array.from(numbers);
        this.count = numbers.length / 4;
        this.reached = new Uint32Array(this.count); // line of the repaired text that a row or one above it shows
        for (let row = 0, line = 0; row < this.count; ++row) {
            line = numbers[row * 4] === differenceKinds.removed ? line : numbers[row * 4 + 2];
            this.reached[row] = line;
        }
    }

    row(i) {
        const [kind, recorded, repaired, count] = this.numbers.subarray(i * 4, i * 4 + 4);
        return {kind: kind, recorded: recorded, repaired: repaired, count: count};
    }

    // The row of a line of the repaired text; a folded one is in the fold's.
    rowOfRepaired(line) {
        let row = lastNotAbove(this.reached, line);
        while (row > 0 && this.numbers[row * 4] === differenceKinds.removed) {
            --row;
        }
        return row;
    }
}
