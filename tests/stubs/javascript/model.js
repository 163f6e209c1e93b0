// The objects that a page finds in the model, which MODEL holds: a selection by a window offers them. And what objects
// hold: those of the model from the beginning, others what a page gave them, as the rows of STATE tell.

'use strict';

var PLACES = {};
var SELECTED = [];
var HELD = {};

MODEL.forEach(entity => Object.entries(entity.answers).forEach(
    ([question, values]) => { HELD[entity.way + '.' + question] = values; }));

// The first arguments tell which one is meant.
function hold(way, name, given, which) {
    var question = name + '(' + given.slice(0, which).map(value => JSON.stringify(named(value))).join(',') + ')';
    HELD[way + '.' + question] = given.slice(which);
    CALLS.push({on: way, holds: question, values: given.slice(which).map(named)});
}

function tellInsertion(way, row, given) {
    var rest = given.slice();
    row.forEach(function (field) {
        var [, name, sign, digits] = /^([\w#-]+)(?:([:*])(\d))?$/.exec(field);
        var size = Number(digits || 1);
        var values = Array.isArray(rest[0]) || rest[0] === null ? rest.shift() || [] : rest.splice(0, size);
        if (sign === '*') {
            for (let at = 0; at < values.length; at += size) {
                let one = values.slice(at, at + size);
                if (name.includes('#')) {
                    hold(way, name.replace('#', at / size + 1), one, 0);
                } else {
                    hold(way, name, [at / size].concat(one), 1);
                }
            }
        } else if (name !== '-') {
            hold(way, name, values, 0);
        }
    });
}

function tellState(on, call, given, way) {
    var row = STATE.find(row => row[0] === call);
    if (/^(Set|put_)/.test(call)) {
        hold(on, call.replace(/^(Set|put_)/, ''), given, row ? Number(row[1]) : 0);
    } else if (row) {
        tellInsertion(way, row.slice(1), given);
    }
}

function isWithin(entity, one, other) {
    return entity.points.some(point => point.every((value, axis) =>
        value >= Math.min(one[axis], other[axis]) - 1e-9 && value <= Math.max(one[axis], other[axis]) + 1e-9));
}

// The answers to a call, its result first; nothing where the model has no part in it. `way` is the way to the result.
function modelAnswers(object, call, given, way) {
    var entity;
    switch (call) {
    case 'CreatePoint':
        PLACES[way] = given;
        return null;
    case 'SelectByWindow':
        SELECTED = MODEL.filter(entity => isWithin(entity, PLACES[given[0].way], PLACES[given[1].way]));
        return null;
    case 'ClearSelections':
        SELECTED = [];
        return null;
    case 'GetSelectedObjectCount':
        return [SELECTED.length];
    case 'GetSelectedObject':
        entity = SELECTED[given[1]];
        return entity ? [new CLASSES[entity.interface](entity.way), entity.number] : null;
    }
    tellState(object.way, call, given, way);
    return HELD[object.way + '.' + call.replace(/^(Get|get_)/, '') + '(' + given.join(',') + ')'] || null;
}
