// Goes in front of a page: presses its button as soon as everything is loaded, hands in what happened, and goes on to the
// next page. The first error counts: those behind it are its consequences.

'use strict';

var firstError = null;

// The page's line, also for what a stub refuses.
window.addEventListener('error', function (event) {
    var place = /\/next:(\d+)/.exec(event.error ? event.error.stack : '');
    firstError = firstError || {message: event.message || 'cannot load ' + event.target.src,
                                line: place ? Number(place[1]) : event.lineno || 0};
}, true);

window.addEventListener('load', function () {
    var buttons = document.querySelectorAll('form[name=macroform] button');
    if (buttons.length === 1) {
        buttons[0].click();
    } else {
        firstError = firstError || {message: 'the page has ' + buttons.length + ' buttons', line: 0};
    }
    fetch('/seen', {method: 'POST', body: JSON.stringify(firstError)})
        .then(() => window.location.assign('/next'));
});
