// The page of a macro in JavaScript. This text stands in a page itself, which the end of a script would end.

'use strict';

// The page's own script: its text, and how many lines of the page are in front of the one where it begins. null where
// there is none.
function scriptOf(page) {
    const begin = page.lastIndexOf('<script type="text/javascript">');
    if (begin < 0) {
        return null;
    }
    const from = page.indexOf('>', begin) + 1;
    const end = page.indexOf('<\/script>', from);
    return {text: page.slice(from, end < 0 ? undefined : end), before: page.slice(0, from).split('\n').length - 1};
}
