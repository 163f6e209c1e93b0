// Colors of code: the words of one line, by the language of its macro. Nothing of a line is left out.

'use strict';

const keywordsOf = {
    c: 'auto bool break case catch char class const continue default delete do double else enum false float for if int '
        + 'long namespace new nullptr operator private protected public return short sizeof static struct switch '
        + 'template this throw true try typedef union unsigned using virtual void while',
    sharp: 'abstract as base bool break byte case catch char class const continue default do double else enum false '
        + 'finally float for foreach if in int interface internal is long namespace new null object out override '
        + 'params private protected public readonly ref return sealed short static string struct switch this throw '
        + 'true try typeof uint using var virtual void while',
    basic: 'AddressOf And As Attribute Boolean ByRef ByVal Call Case Catch Class Const Dim Do Double Each Else ElseIf '
        + 'End Exit Explicit False Finally For Friend Function Get GoTo If Imports In Inherits Integer Is Let Long '
        + 'Loop Me Mod Module Namespace New Next Not Nothing Object Of On Option Or Private Property Public ReDim '
        + 'Resume Return Select Set Shared Single Static String Sub Then To True Try Until Variant Wend While With',
    script: 'break case catch const continue default delete do else false finally for function if in instanceof let '
        + 'new null return switch this throw true try typeof undefined var void while',
    python: 'False None True and as assert break class continue def del elif else except finally for from global if '
        + 'import in is lambda not or pass raise return try while with yield'
};

// What a line is made of, in the order in which it is tried; everything else is plain.
const wordsOf = {
    c: {comment: '//.*|/\\*.*?(?:\\*/|$)', string: 'L?"(?:\\\\.|[^"\\\\])*(?:"|$)|L?\'(?:\\\\.|[^\'\\\\])*(?:\'|$)'},
    sharp: {comment: '//.*|/\\*.*?(?:\\*/|$)',
        string: '@"(?:""|[^"])*(?:"|$)|"(?:\\\\.|[^"\\\\])*(?:"|$)|\'(?:\\\\.|[^\'\\\\])*(?:\'|$)'},
    basic: {comment: '\'.*|\\bRem\\b.*', string: '"(?:""|[^"])*(?:"|$)'},
    script: {comment: '//.*|/\\*.*?(?:\\*/|$)|<!--.*?(?:-->|$)',
        string: '"(?:\\\\.|[^"\\\\])*(?:"|$)|\'(?:\\\\.|[^\'\\\\])*(?:\'|$)'},
    python: {comment: '#.*',
        string: '""".*?(?:"""|$)|"(?:\\\\.|[^"\\\\])*(?:"|$)|\'(?:\\\\.|[^\'\\\\])*(?:\'|$)'}
};
const familyOfTarget = {cpp: 'c', cppcom: 'c', csharp: 'sharp', vbnet: 'basic', vba: 'basic', javascript: 'script',
    python: 'python'};
const longestPainted = 4000; // characters; behind them a line is plain

class Painter {
    constructor(target) {
        const family = familyOfTarget[target] || 'c';
        const words = wordsOf[family];
        const ignoresCase = family === 'basic';
        this.keywords = new Set(keywordsOf[family].split(' ').map(word => ignoresCase ? word.toLowerCase() : word));
        this.ignoresCase = ignoresCase;
        this.pattern = new RegExp('(' + words.comment + ')|(' + words.string + ')'
            + '|((?:&H[0-9A-F]+|0x[0-9a-f]+|\\d+\\.?\\d*(?:e[+-]?\\d+)?)\\w*)'
            + '|([#@]?[A-Za-z_\\u00aa-\\uffff][\\w\\u00aa-\\uffff]*)', 'gi');
    }

    // [{kind, text}], whose texts are the line; kind '' is plain.
    pieces(line) {
        const pieces = [];
        const painted = line.slice(0, longestPainted);
        let from = 0;
        const add = (kind, text) => {
            const last = pieces[pieces.length - 1];
            if (last && last.kind === kind) {
                last.text += text;
            } else if (text) {
                pieces.push({kind: kind, text: text});
            }
        };
        for (const match of painted.matchAll(this.pattern)) {
            add('', painted.slice(from, match.index));
            from = match.index + match[0].length;
            add(this.kindOf(match, painted, from), match[0]);
        }
        add('', line.slice(from));
        return pieces;
    }

    kindOf(match, line, end) {
        if (match[1] !== undefined) {
            return 'comment';
        }
        if (match[2] !== undefined) {
            return 'string';
        }
        if (match[3] !== undefined) {
            return 'number';
        }
        if (match[4][0] === '#' || this.keywords.has(this.ignoresCase ? match[4].toLowerCase() : match[4])) {
            return 'keyword';
        }
        // In Basic, elements of arrays look like calls.
        const isCalled = !this.ignoresCase && /^\s*\(/.test(line.slice(end, end + 8));
        return isCalled || /(?:\.|->)$/.test(line.slice(0, match.index).slice(-2)) ? 'call' : '';
    }
}

// The pieces with what lies within ranges [from, to] of the line apart, as `isMarked`. The ranges are in order.
function withMarks(pieces, ranges) {
    const marked = [];
    const cuts = [].concat(...ranges);
    let at = 0;
    for (const piece of pieces) {
        const end = at + piece.text.length;
        const places = [at, ...cuts.filter(cut => cut > at && cut < end), end];
        places.slice(1).forEach((place, i) => {
            const from = places[i];
            marked.push({kind: piece.kind, text: piece.text.slice(from - at, place - at),
                isMarked: ranges.some(range => range[0] <= from && range[1] >= place)});
        });
        at = end;
    }
    return marked;
}

function paintInto(into, pieces) {
    for (const piece of pieces) {
        const classes = [piece.kind && 'code-' + piece.kind, piece.isMarked && 'isMarked'].filter(name => name);
        if (classes.length) {
            into.append(putText(element('span', {class: classes.join(' ')}), piece.text, true));
        } else {
            putText(into, piece.text, true);
        }
    }
    return into;
}
