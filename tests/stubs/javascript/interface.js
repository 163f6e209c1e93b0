// The automation interface in the browser: a class for each that INTERFACE describes. Every object knows the way that
// led to it and notes what it is asked for in CALLS. It can be asked for nothing else, and holds no other properties.

'use strict';

var CALLS = [];
var COUNTS = {};

// A value as a call has it: objects by the way to them, those in lists too.
function named(value) {
    return value instanceof Noting ? '@' + value.way : Array.isArray(value) ? value.map(named) : value;
}

function note(object, call, given, result) {
    CALLS.push({on: object.way, call: call, args: given.map(named)});
    if (given.length < 2 && !call.startsWith('Insert')) {
        return object.way + '.' + call + '(' + given.map(value => JSON.stringify(value)).join('') + ')';
    }
    COUNTS[result] = (COUNTS[result] || 0) + 1;
    return result + '#' + COUNTS[result];
}

function Noting(way) {
    this.way = way;
    Object.freeze(this);
}

function isOf(type, value) {
    switch (type) {
    case 'double': return typeof value === 'number' && isFinite(value);
    case 'int':
    case 'long': return Number.isInteger(value);
    case 'bool': return typeof value === 'boolean';
    case 'string': return typeof value === 'string';
    case 'object': return true;
    }
    if (type.endsWith('[]')) {
        // A call that can do without an array is given none.
        return value === null || Array.isArray(value) && value.every(element => isOf(type.slice(0, -2), element));
    }
    if (type in INTERFACE.enumerations) {
        return INTERFACE.enumerations[type].includes(value);
    }
    return value instanceof CLASSES[type] || value instanceof Found;
}

function answer(type, way) {
    if (type.endsWith('[]')) {
        return [answer(type.slice(0, -2), way + '[0]'), answer(type.slice(0, -2), way + '[1]')];
    }
    if (type in CLASSES) {
        return new CLASSES[type](way);
    }
    if (type === 'object') {
        return new Found(way);
    }
    if (type in INTERFACE.enumerations) {
        return INTERFACE.enumerations[type][0];
    }
    return {double: 0, int: 0, long: 0, bool: false, string: ''}[type];
}

// Several results come as an array, which has them by their names too.
function answers(types, names, way, known) {
    var results = types.map((type, i) => known && i in known ? known[i] : answer(type, way));
    if (results.length < 2) {
        return results[0];
    }
    names.forEach((name, i) => { if (name) { results[name] = results[i]; } });
    return results;
}

function addOperation(prototype, name, parameters, outs, result) {
    prototype[name] = function () {
        var given = Array.from(arguments);
        if (given.length !== parameters.length || !parameters.every((type, i) => isOf(type, given[i]))) {
            throw new TypeError(name + '(' + given.map(String).join(', ') + ') does not take these arguments');
        }
        var all = (result ? [[result, '']] : []).concat(outs);
        var way = note(this, name, given, result);
        return answers(all.map(([type]) => type), all.map(([, title]) => title), way,
                       modelAnswers(this, name, given, way));
    };
}

function addProperty(prototype, name, type) {
    addOperation(prototype, 'put_' + name, [type], [], '');
    addOperation(prototype, 'get_' + name, [], [], type);
    Object.defineProperty(prototype, name, {get: prototype['get_' + name], configurable: true});
}

var CLASSES = {};

Object.keys(INTERFACE.classes).forEach(function (name) {
    CLASSES[name] = function (way) { Noting.call(this, way); };
});

Object.entries(INTERFACE.classes).forEach(function ([name, members]) {
    var prototype = CLASSES[name].prototype = Object.create((CLASSES[members.base] || Noting).prototype);
    members.operations.forEach(operation => addOperation(prototype, ...operation));
    members.properties.forEach(property => addProperty(prototype, ...property));
});

// An object that is found by its handle, and is of whatever class a macro takes it for.
function Found(way) {
    Noting.call(this, way);
}

Found.prototype = Object.create(Noting.prototype);
Object.keys(CLASSES).forEach(function (name) {
    Object.defineProperties(Found.prototype, Object.getOwnPropertyDescriptors(CLASSES[name].prototype));
});

// For an object that a macro asks although nothing gave it: line1 is a Line.
function given(variable) {
    var name = Object.keys(CLASSES).find(name => name.toLowerCase() === variable.replace(/\d+$/, ''));
    return new CLASSES[name]('given ' + name);
}

// Some statements quote the names of enumerators and some do not.
Object.values(INTERFACE.enumerations).flat().forEach(function (name) {
    globalThis[name] = name;
});

function ijScriptManager() {}

ijScriptManager.prototype.getApplication = () => new CLASSES.Application('app');
