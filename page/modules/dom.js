import { label } from './labels.js';

/** Makes an element. An attribute of true is written without a value, one of false or undefined not at all. */
export function element(name, attributes = {}, ...children) {
    const made = document.createElement(name);
    for (const [attribute, value] of Object.entries(attributes)) {
        if (value !== false && value !== undefined) made.setAttribute(attribute, value === true ? '' : value);
    }
    made.append(...children);
    return made;
}

/** Makes an element for a text of the packet, in its language; '' is an unknown one. */
export function textElement(name, text, language = '', attributes = {}) {
    return element(name, { dir: directionOf(language), lang: language, ...attributes }, text);
}

const rightToLeftScripts = new Set([
    'Adlm', 'Arab', 'Hebr', 'Mand', 'Mend', 'Nkoo', 'Rohg', 'Samr', 'Syrc', 'Thaa', 'Yezi',
]);

/** Returns the direction of a language, as the attribute `dir` names it: that of its script, if that is known. */
export function directionOf(language) {
    try {
        const { script } = new Intl.Locale(language).maximize();
        if (script) return rightToLeftScripts.has(script) ? 'rtl' : 'ltr';
    } catch {
        // Not the form of a language tag.
    }
    return 'auto';
}

export function byId(id) {
    return document.getElementById(id);
}

/** Writes the labels into the markup: `data-label` is an element's text, `data-name` its name and tooltip. */
export function writeLabels(root) {
    for (const node of root.querySelectorAll('[data-label]')) node.textContent = label(node.dataset.label);
    for (const node of root.querySelectorAll('[data-name]')) setName(node, label(node.dataset.name));
}

export function setName(node, name) {
    node.setAttribute('aria-label', name);
    if (node.matches('button')) node.title = name;
}
