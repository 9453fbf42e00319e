import { element, textElement } from './dom.js';
import { IntervalIndex, sameItems } from './intervals.js';
import { label } from './labels.js';
import { hasText } from './packet.js';

// More captions at one time than this are a number.
const limit = 20;

const sides = { left: 'start', center: 'center', right: 'end', top: 'start', bottom: 'end' };

/** Draws the captions of one or two languages over the stage, with the style of the packet. */
export class CaptionView {
    #shown = [];

    constructor(container) {
        this.container = container;
        this.languages = [];
        this.index = new IntervalIndex([]);
    }

    open({ captions, header }) {
        this.index = new IntervalIndex(captions.items);
        this.#shown = [];
        this.container.replaceChildren();
        if (captions.items.length === 0) return;
        const { style } = this.container;
        // As a string in CSS, so that the name cannot be anything else.
        style.fontFamily = `${JSON.stringify(captions.fontFamily)}, sans-serif`;
        style.setProperty('--caption-size', captions.fontSize / (header.width || 1280));
        style.setProperty('--caption-colour', `rgb(${captions.colour.join(' ')})`);
        style.setProperty('--caption-background',
            `rgb(${captions.background.join(' ')} / ${captions.opacity})`);
    }

    setLanguages(languages) {
        this.languages = languages;
        this.#shown = undefined;
    }

    /** Shows what the packet shows at the time. */
    draw(time) {
        const captions = this.index.at(time);
        if (this.#shown && sameItems(captions, this.#shown)) return;
        this.#shown = captions;
        const shown = this.languages.flatMap((language) => captions
            .filter((caption) => hasText(caption, language)).map((caption) => [caption, language]));
        const places = new Map();
        for (const [caption, language] of shown.slice(0, limit))
            this.#place(caption, textElement('p', caption.texts.get(language), language, { class: 'caption' }), places);
        if (shown.length > limit)
            this.#place({}, element('p', { class: 'caption' }, label('moreCaptions', { count: shown.length - limit })), places);
        this.container.replaceChildren(...places.values());
    }

    // Captions of the same height are one below the other, so that none covers another.
    #place({ vertical, horizontal }, node, places) {
        const side = sides[vertical] ?? 'end';
        if (!places.has(side)) {
            places.set(side, element('div', { class: 'caption-place' }));
            places.get(side).style.alignSelf = side;
        }
        node.style.justifySelf = sides[horizontal] ?? 'center';
        node.style.textAlign = horizontal in sides ? horizontal : 'center';
        places.get(side).append(node);
    }
}
