// Colors on the screen: the recorded ones where they can be seen on the paper, else in the same hue.

'use strict';

const leastContrast = 3;

function linearPart(value) {
    const share = value / 255;
    return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
}

function luminanceOf(rgb) {
    return 0.2126 * linearPart(rgb[0]) + 0.7152 * linearPart(rgb[1]) + 0.0722 * linearPart(rgb[2]);
}

function contrastOf(one, other) {
    const [dark, light] = [luminanceOf(one), luminanceOf(other)].sort((a, b) => a - b);
    return (light + 0.05) / (dark + 0.05);
}

// The color itself, or mixed with as little black or white as lets it be seen, which keeps the hue.
function visibleColor(rgb, paper) {
    if (contrastOf(rgb, paper) >= leastContrast) {
        return rgb;
    }
    const end = luminanceOf(paper) > 0.18 ? 0 : 255;
    const mixed = share => rgb.map(value => Math.round(value + (end - value) * share));
    let low = 0;
    let high = 1;
    for (let i = 0; i < 12; i++) {
        const middle = (low + high) / 2;
        if (contrastOf(mixed(middle), paper) >= leastContrast) {
            high = middle;
        } else {
            low = middle;
        }
    }
    return mixed(high);
}

function textOfColor(rgb) {
    return '#' + rgb.map(value => value.toString(16).padStart(2, '0')).join('');
}

// Of the forms that a canvas gives its colors: `#rrggbb` and `rgba(r, g, b, a)`.
function partsOfColor(text) {
    return text[0] === '#' ? [1, 3, 5].map(at => parseInt(text.slice(at, at + 2), 16))
        : text.match(/[\d.]+/g).slice(0, 3).map(Number);
}

// The color of a style or of a layer for a paper. One by layer is the layer's where it has one; index 7 and those that
// nothing tells are the color of the role.
function recordedColor(color, layerColor, roleColor, paper) {
    const own = color === 'bylayer' ? layerColor : color;
    return own && own.rgb ? textOfColor(visibleColor(own.rgb, paper)) : roleColor;
}
