// Differences of the repaired macro to the recorded one, as rows.

'use strict';

const linesAround = 2; // equal ones that stay above and below of a hunk

// What two lines have in common at both ends; pairs of surrogates stay together.
function commonEnds(one, other) {
    const most = Math.min(one.length, other.length);
    let head = 0;
    while (head < most && one[head] === other[head]) {
        ++head;
    }
    if (head > 0 && /[\ud800-\udbff]/.test(one[head - 1])) {
        --head;
    }
    let tail = 0;
    while (tail < most - head && one[one.length - 1 - tail] === other[other.length - 1 - tail]) {
        ++tail;
    }
    if (tail > 0 && /[\udc00-\udfff]/.test(one[one.length - tail])) {
        --tail;
    }
    return {head: head, tail: tail};
}

const differenceKinds = {equal: 0, removed: 1, added: 2, folded: 3};

// Rows of {kind, recorded, repaired}, numbers of lines from 1, 0 for none. In a folded one they begin what is folded, and
// `count` tells how many. Paired lines of a hunk stand below one another, and each knows the other's number.
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
