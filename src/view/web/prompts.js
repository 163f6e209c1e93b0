// What a macro that asks its user something is answered: what was answered when it was recorded.

'use strict';

// The answers among the actions of a recording, in their order; a prompt that was cancelled is none.
function recordedAnswers(actions) {
    return actions.map(({action}) => action.interaction && action.interaction.result)
        .filter(result => result).map(result => Array.isArray(result) ? result[0] : result);
}

// An answer in the types of a prompt's results, undefined where it has nothing of a type.
function answerParts(answer, types) {
    const number = [answer.double, answer.int8, answer.int16, answer.int32, 0].find(one => typeof one === 'number');
    const numbers = (answer.point3d || answer.point2d || [number]).slice();
    const makePoint = () => {
        const point = new Thing('MathPoint', null, null);
        point.held.set('Point', [0, 1, 2].map(axis => numbers[axis] || 0));
        return point;
    };
    return types.map(type => {
        switch (type) {
        case 'double': return numbers.shift() || 0;
        case 'int': return Math.trunc(numbers.shift() || 0);
        case 'string': return answer.string || '';
        case 'MathPoint': return makePoint();
        }
        return undefined;
    });
}
