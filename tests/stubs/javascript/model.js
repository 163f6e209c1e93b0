// The objects that a page finds in the model, which MODEL holds: a selection by a window offers them, and they know
// their geometry.

'use strict';

var PLACES = {};
var SELECTED = [];

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
    entity = MODEL.find(entity => entity.way === object.way);
    return entity ? entity.answers[call + '(' + given.join(',') + ')'] : null;
}
