// Opens the other scripts of the page, which are packed as its data are, and tells what goes wrong in it.

'use strict';

function tellTrouble(text) {
    const trouble = byId('trouble');
    trouble.hidden = false;
    putText(empty(trouble), text);
}

function watchTrouble() {
    window.addEventListener('error', event => {
        // A list that is still being laid out tells that it goes on in the next frame; nothing is wrong with that.
        if (!/^ResizeObserver loop/.test(event.message)) {
            tellTrouble('Something is wrong in this page: ' + event.message);
        }
    });
    window.addEventListener('unhandledrejection', event => tellTrouble('Something is wrong in this page: '
        + (event.reason && event.reason.message || event.reason)));
}

// The policy of the page knows each of them: another text does not run.
function runScripts(texts) {
    const types = window.trustedTypes || {createPolicy: (name, policy) => policy};
    const policy = types.createPolicy('page', {createScript: text => text});
    for (const text of texts) {
        const script = document.createElement('script');
        script.text = policy.createScript(text);
        document.body.append(script);
    }
}

async function loadPage() {
    watchTrouble();
    if (typeof DecompressionStream !== 'function') {
        tellTrouble('This browser is too old for the page: it needs Chromium 93, Firefox 113, Safari 16.4, or a later one.');
        return;
    }
    try {
        const bytes = await inflated([bytesOfBase64(byId('scripts').textContent)]);
        runScripts(JSON.parse(new TextDecoder('utf-8').decode(bytes)));
    } catch (error) {
        tellTrouble('The page cannot be shown: its scripts are damaged.');
    }
}

if (typeof document !== 'undefined') {
    loadPage();
}
