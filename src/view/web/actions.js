// The actions of a recording, and what the report tells of them.

'use strict';

// Custom actions by their numbers. One that is refused ends its command.
const kinds = {trim: 6, sheet: 13, namedView: 14, embed: 15, pen: 16, erase: 17, hatch: 18, attribute: 39, edit: 40,
    viewBackground: 41, vertex: 42, activate: 45, viewport: 46, printStyle: 47};
const refusedKinds = [24, 25, 51, 52, 53, 54];
const lastKind = 55;
// What reports and maps have in common of an action: its line, and its place within the command there.
function actionKey(line, path) {
    return line + ' ' + (/^command\.actions\[\d+\]/.exec(path || '') || [''])[0];
}

// The actions of a recording in their order, each with its line (from 1) and its path, as reports name them; `key` is
// what reports and maps have in common. `lines` are the parsed lines, null for empty ones.
function actionsOf(lines) {
    const actions = [];
    lines.forEach((line, index) => {
        const isCommand = line && line.command;
        for (const [i, action] of (isCommand ? line.command.actions : [line]).entries()) {
            if (!action || 'recording' in action || 'drawing' in action || 'object' in action) {
                continue;
            }
            const kind = action.custom ? action.custom.kind : 0;
            const isRefused = refusedKinds.includes(kind) || kind > lastKind;
            if ('command' in action || isCommand && 'null' in action || isRefused) {
                break;
            }
            const path = isCommand ? 'command.actions[' + i + ']' : '';
            actions.push({key: actionKey(index + 1, path), line: index + 1, path: path, action: action});
        }
    });
    return actions;
}

function noneTold() {
    return {whole: false, objects: new Set(), inBlock: new Set(), properties: new Map()};
}

// Its groups are the tag of a property, the handle, and the block that lacks the object.
const lossTitle = /^(?:property "(.*)" of |added |modified |changes of )?\w+ ([0-9A-F]+)(?:( in block .*)|: .*)?$/;

// What the report tells of the actions, as lost or as assumed: all of one, objects, objects that a block lacks, and
// properties by their tags, with the value that the macro has in place of one that is assumed.
class Told {
    constructor(notes) {
        this.byAction = new Map();
        this.lostOnLine = new Set(); // the line and the handle of each object
        for (const note of notes) {
            const key = actionKey(note.line, note.path);
            if (!this.byAction.has(key)) {
                this.byAction.set(key, noneTold());
            }
            this.add(this.byAction.get(key), note);
        }
    }

    add(told, {line, what, reason}) {
        const [, tag, handle, block] = lossTitle.exec(what) || [];
        if (what.startsWith('custom ')) {
            told.whole = true;
        } else if (block !== undefined) {
            told.inBlock.add(handle);
        } else if (tag !== undefined) {
            const [, number] = / gives (-?\d+(?:\.\d+)?)$/.exec(reason) || [];
            told.properties.set(tag, number === undefined ? anything : Number(number));
        } else if (handle !== undefined) {
            told.objects.add(handle);
            if (!/^(?:modified|changes of) /.test(what)) {
                this.lostOnLine.add(line + ' ' + handle);
            }
        }
    }

    of(key) {
        return this.byAction.get(key) || noneTold();
    }
}
