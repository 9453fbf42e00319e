// Accents and points that a search ignores (Latin, Greek, Cyrillic, Hebrew, Arabic), and characters that
// show nothing.
const ignored = /[\u0300-\u036f\u0591-\u05c7\u0640\u064b-\u0652\u0670\u00ad\u200b-\u200f\u202a-\u202e\u2060-\u2069\ufeff]/g;

// Most texts of many languages need nothing else than lower case.
const simple = /^[ -~]*$/;

const variants = { '\u00df': 'ss', '\u03c2': '\u03c3' };

/** Returns the text as the search compares it: without case, accents and width. */
export function fold(text) {
    if (simple.test(text)) return text.toLowerCase();
    return text.normalize('NFKD').toLowerCase().replace(ignored, '').replace(/[\u00df\u03c2]/g, (letter) => variants[letter])
        .replace(/[^\S ]/g, ' ');
}

/** Returns the parts of the text around each place of the folded query: text, match, text, match, text. */
export function splitAtMatches(text, foldedQuery) {
    let folded = '';
    const origins = [];
    let offset = 0;
    for (const character of text) {
        const part = fold(character);
        for (let i = 0; i < part.length; ++i) origins.push(offset);
        folded += part;
        offset += character.length;
    }
    origins.push(text.length);
    const parts = [];
    let end = 0;
    for (let at = folded.indexOf(foldedQuery); at >= 0; at = folded.indexOf(foldedQuery, at + foldedQuery.length)) {
        const begin = Math.max(end, origins[at]);
        const matchEnd = origins[at + foldedQuery.length];
        parts.push(text.slice(end, begin), text.slice(begin, matchEnd));
        end = matchEnd;
    }
    parts.push(text.slice(end));
    return parts;
}

function* entriesOf(packet) {
    for (const { id } of packet.languages) {
        for (const caption of packet.captions.items)
            yield { kind: 'hitInCaption', language: id, time: caption.start, text: caption.texts.get(id) ?? '' };
    }
    for (const entry of packet.contents.items)
        yield { kind: 'hitInContents', language: '', time: entry.start, text: entry.text };
    for (const item of packet.screenTexts.items)
        yield { kind: 'hitInScreenText', language: '', time: item.start, text: item.text };
}

/** Finds texts of a packet. The index grows step by step, or as a whole at the first search. */
export class PacketSearch {
    constructor(packet) {
        this.source = entriesOf(packet);
        this.index = [];
    }

    /** Adds at most so many texts; returns whether there may be more. */
    addToIndex(count) {
        for (let i = 0; i < count; ++i) {
            const { done, value } = this.source.next();
            if (done) return false;
            if (value.text !== '') this.index.push({ ...value, folded: fold(value.text) });
        }
        return true;
    }

    /** Returns the hits in the order of their times. */
    find(foldedQuery) {
        this.addToIndex(Infinity);
        if (foldedQuery === '') return [];
        return this.index.filter((entry) => entry.folded.includes(foldedQuery)).sort((a, b) => a.time - b.time);
    }
}
