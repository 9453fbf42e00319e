import { element, textElement } from './dom.js';
import { IntervalIndex, sameItems } from './intervals.js';

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
        const places = new Map();
        for (const language of this.languages) {
            for (const caption of captions) {
                const text = caption.texts.get(language) ?? '';
                if (text.trim() !== '') this.#placeFor(caption, places).append(
                    textElement('p', text, language, { class: 'caption' }));
            }
        }
        this.container.replaceChildren(...places.values());
    }

    #placeFor({ vertical, horizontal }, places) {
        const key = `${vertical} ${horizontal}`;
        if (!places.has(key)) {
            const place = element('div', { class: 'caption-place' });
            place.style.alignSelf = sides[vertical] ?? 'end';
            place.style.justifySelf = sides[horizontal] ?? 'center';
            place.style.textAlign = horizontal in sides ? horizontal : 'center';
            places.set(key, place);
        }
        return places.get(key);
    }
}
