import { plainText } from './rich-text.js';

const namespaces = {
    // Of Firefox, for its messages; other browsers use xhtml.
    errors: 'http://www.mozilla.org/newlayout/xml/parsererror.xml',
    dc: 'http://purl.org/dc/elements/1.1/',
    rdf: 'http://www.w3.org/1999/02/22-rdf-syntax-ns#',
    stDim: 'http://ns.adobe.com/xap/1.0/sType/Dimensions#',
    stFnt: 'http://ns.adobe.com/xap/1.0/sType/Font#',
    x: 'adobe:ns:meta/',
    xhtml: 'http://www.w3.org/1999/xhtml',
    xml: 'http://www.w3.org/XML/1998/namespace',
    xmpDM: 'http://ns.adobe.com/xmp/1.0/DynamicMedia/',
    xmpG: 'http://ns.adobe.com/xap/1.0/g/',
    zel: 'http://ns.zel.example/xmp/zel/',
    zelDM: 'http://ns.zel.example/xmp/zelDM/',
};

// The length of a text that a message quotes.
const excerptLength = 60;

/** Why a text is not a packet; `key` is a label, and `excerpt` shows the place, if there is one. */
export class PacketError extends Error {
    constructor(key, values = {}, excerpt = '') {
        super(key);
        this.key = key;
        this.values = values;
        this.excerpt = excerpt;
    }
}

// Resolves a name such as dc:title once.
const resolvedNames = new Map();
function resolve(name) {
    if (!resolvedNames.has(name)) {
        const [prefix, local] = name.split(':');
        resolvedNames.set(name, [namespaces[prefix], local]);
    }
    return resolvedNames.get(name);
}

function isNamed(node, name) {
    const [namespace, local] = resolve(name);
    return node.localName === local && node.namespaceURI === namespace;
}

function childrenOf(node, name) {
    const found = [];
    for (let child = node?.firstChild; child; child = child.nextSibling)
        if (isNamed(child, name)) found.push(child);
    return found;
}

function childOf(node, ...names) {
    return names.reduce((parent, name) => childrenOf(parent, name)[0], node);
}

// A resource is the elements that may hold its properties. RDF lets them be in an element itself (as attributes,
// or with parseType Resource) or in a description in it.
function resourceIn(node) {
    return node ? [...childrenOf(node, 'rdf:Description'), node] : [];
}

function propertyOf(resource, name) {
    for (const part of resource) {
        const property = childOf(part, name);
        if (property) return property;
    }
    return undefined;
}

// RDF lets a simple property be an attribute or an element.
function valueOf(resource, name) {
    const [namespace, local] = resolve(name);
    for (const part of resource) {
        const value = part.getAttributeNS(namespace, local);
        if (value) return value;
    }
    return propertyOf(resource, name)?.textContent ?? '';
}

function resourceOf(resource, name) {
    return resourceIn(propertyOf(resource, name));
}

function itemsOf(resource, name, container) {
    return childrenOf(childOf(propertyOf(resource, name), container), 'rdf:li');
}

function languageOf(item) {
    return item.getAttributeNS(namespaces.xml, 'lang') ?? '';
}

export function isBlank(text) {
    return text.trim() === '';
}

/** Returns whether the caption shows in the language. */
export function hasText(caption, language) {
    return !isBlank(caption.texts.get(language) ?? '');
}

const whole = { pattern: /^[+-]?\d+$/ };
const natural = { pattern: /^\d+$/ };
const component = { ...natural, maximum: 255 };
const fraction = { pattern: /^(\d+\.?\d*|\.\d+)(e[+-]?\d+)?$/i, maximum: 1 };

class PacketReader {
    // What is not as the format says: the place ({key, number, time}), the name and value of the property.
    faults = [];

    // The text of a number, which may be larger than a number can be exact.
    digits(resource, name, place, { pattern, maximum = Infinity } = whole) {
        const value = valueOf(resource, name);
        if (pattern.test(value) && Number(value) <= maximum) return value;
        this.faults.push({ place, property: name, value });
        return undefined;
    }

    number(resource, name, place, form) {
        const digits = this.digits(resource, name, place, form);
        return digits === undefined ? undefined : Number(digits);
    }

    header(description, place) {
        const duration = resourceOf(description, 'xmpDM:duration');
        const scale = /^(\d+)\/([1-9]\d*)$/.exec(valueOf(duration, 'xmpDM:scale')) ?? [, 1, 1000];
        const size = resourceOf(description, 'xmpDM:videoFrameSize');
        const parameters =
            itemsOf(resourceOf(description, 'zelDM:controller'), 'zelDM:parameters', 'rdf:Bag').map(resourceIn);
        const search = parameters.find((parameter) => valueOf(parameter, 'xmpDM:name') === 'showsearch') ?? [];
        const keywords = valueOf(description, 'zelDM:keywords');
        return {
            version: valueOf(description, 'zel:version'),
            title: valueOf(description, 'dc:title'),
            date: valueOf(description, 'dc:date'),
            creator: valueOf(description, 'dc:creator'),
            description: valueOf(description, 'dc:Description'),
            source: valueOf(description, 'dc:source'),
            isExplicit: valueOf(description, 'zelDM:iPodExplicit') === 'true',
            keywords: keywords === '' ? [] : keywords.split(', '),
            thumbnail: valueOf(description, 'zelDM:thumbnail'),
            firstFrame: valueOf(description, 'zelDM:firstFrame'),
            length: Math.round(
                (this.number(duration, 'xmpDM:value', place, natural) ?? 0) * 1000 * scale[1] / scale[2]),
            width: this.number(size, 'stDim:w', place, natural) ?? 0,
            height: this.number(size, 'stDim:h', place, natural) ?? 0,
            hasSearchBar: valueOf(search, 'xmpDM:value') === 'true',
            files: itemsOf(resourceOf(description, 'zelDM:contentList'), 'zelDM:files', 'rdf:Seq')
                .map((file) => valueOf(resourceIn(file), 'xmpDM:value')),
        };
    }

    rate(track, place) {
        const value = valueOf(track, 'xmpDM:frameRate');
        if (/^f[1-9]\d*$/.test(value)) return Number(value.slice(1));
        this.faults.push({ place, property: 'xmpDM:frameRate', value });
        return 1000;
    }

    // The items of a track in the order of their starts, with their positions in the packet; those without a
    // readable start are left out.
    items(track, rate, placeKey, readItem) {
        return itemsOf(track, 'xmpDM:markers', 'rdf:Seq')
            .map((marker, index) => {
                const resource = resourceIn(marker);
                const place = { key: placeKey, number: index + 1 };
                const milliseconds = (name) => {
                    const time = this.number(resource, name, place);
                    return time === undefined ? undefined : Math.round(time * 1000 / rate);
                };
                const start = milliseconds('xmpDM:startTime');
                if (start === undefined) return undefined;
                place.time = start;
                return { position: index, ...readItem(resource, start, milliseconds, place) };
            })
            .filter((item) => item !== undefined)
            .sort((a, b) => a.start - b.start);
    }

    image(resource, name, place) {
        return {
            image: valueOf(resource, name),
            index: this.digits(resource, 'zelDM:imageindex', place) ?? '0',
            offset: this.digits(resource, 'zelDM:imageoffset', place) ?? '0',
        };
    }

    colour(track, name, place) {
        const colour = resourceOf(track, name);
        return ['xmpG:red', 'xmpG:green', 'xmpG:blue'].map((part) => this.number(colour, part, place, component) ?? 0);
    }

    captions(track, place) {
        const rate = this.rate(track, place);
        return {
            rate,
            fontFamily: valueOf(track, 'stFnt:fontFamily'),
            fontSize: this.number(track, 'zelDM:fontSize', place) ?? 20,
            opacity: this.number(track, 'zelDM:bgOpacity', place, fraction) ?? 1,
            colour: this.colour(track, 'zel:fgColor', place),
            background: this.colour(track, 'zel:bgColor', place),
            items: this.items(track, rate, 'faultOfCaption', (resource, start, milliseconds) => ({
                start,
                end: start + (milliseconds('xmpDM:duration') ?? 0),
                vertical: valueOf(resource, 'zelDM:valign'),
                horizontal: valueOf(resource, 'zelDM:halign'),
                texts: new Map(itemsOf(resource, 'xmpDM:name', 'rdf:Alt').map((text) =>
                    [languageOf(text), plainText(text.textContent)])),
            })),
        };
    }

    contents(track, place) {
        const rate = this.rate(track, place);
        const image = valueOf(track, 'zelDM:image');
        const items = this.items(track, rate, 'faultOfEntry', (resource, start, _, itemPlace) => {
            const own = this.image(resource, 'zelDM:image', itemPlace);
            return { start, text: valueOf(resource, 'xmpDM:name'), ...own, image: own.image || image };
        });
        return { rate, image, items };
    }

    screenTexts(track, place) {
        const rate = this.rate(track, place);
        return {
            rate,
            items: this.items(track, rate, 'faultOfScreenText', (resource, start, milliseconds, itemPlace) => ({
                start,
                end: start + (milliseconds('xmpDM:duration') ?? 0),
                text: valueOf(resource, 'xmpDM:name'),
                ...this.image(resource, 'xmpDM:image', itemPlace),
                entry: this.number(resource, 'zelDM:tocEntry', itemPlace) ?? 0,
            })),
        };
    }

    tracks(description) {
        const kinds = new Map([
            ['Caption', 'captions'], ['TableOfContents', 'contents'], ['ScreenText', 'screenTexts'],
        ]);
        const tracks = {};
        itemsOf(description, 'xmpDM:Tracks', 'rdf:Bag').map(resourceIn).forEach((track, index) => {
            const place = { key: 'faultOfTrack', number: index + 1 };
            const type = valueOf(track, 'xmpDM:trackType');
            const kind = kinds.get(type);
            if (kind === undefined || tracks[kind]) {
                this.faults.push({ place, property: 'xmpDM:trackType', value: type });
            } else {
                tracks[kind] = this[kind](track, place);
            }
        });
        return tracks;
    }
}

// The languages of the captions in the order of the packet's list, then those that are not in it.
function languagesOf(description, captions) {
    const names = new Map(itemsOf(description, 'zel:langName', 'rdf:Bag').map((item) =>
        [languageOf(item), item.textContent]));
    const used = new Set(captions.items.flatMap((caption) => [...caption.texts.keys()]));
    const listed = [...names.keys()].filter((id) => used.has(id));
    return [...new Set([...listed, ...used])].map((id) => ({ id, name: names.get(id) ?? id }));
}

function linkEntries(contents, length) {
    contents.items.forEach((entry, index) => {
        entry.end = contents.items[index + 1]?.start ?? Math.max(length, entry.start);
    });
}

// With the namespace only if that is what differs from a packet.
function rootTag(name, namespace) {
    return name === 'x:xmpmeta' ? `<${name} xmlns:x="${namespace}">` : `<${name}>`;
}

/** Reads the document of a packet. Throws a PacketError if it is another one. */
export function readPacket(document) {
    const root = document.documentElement;
    if (!isNamed(root, 'x:xmpmeta'))
        throw new PacketError('foreignRoot', { found: rootTag(root.nodeName, root.namespaceURI), expected: '<x:xmpmeta>' });
    const rdf = childOf(root, 'rdf:RDF');
    if (!rdf) throw new PacketError('foreignContent', { parent: '<x:xmpmeta>', expected: '<rdf:RDF>' });
    // The descriptions about the same thing are one resource.
    const aboutOf = (node) => node.getAttributeNS(namespaces.rdf, 'about') ?? '';
    const descriptions = childrenOf(rdf, 'rdf:Description');
    const main = descriptions.find((node) => valueOf([node], 'zel:version') !== '');
    const description = descriptions.filter((node) => main && aboutOf(node) === aboutOf(main));
    if (!main)
        throw new PacketError('foreignContent',
            { parent: '<rdf:RDF>', expected: '<rdf:Description> with zel:version' });

    const reader = new PacketReader();
    const header = reader.header(description, { key: 'faultOfHeader' });
    const tracks = reader.tracks(description);
    const captions = tracks.captions ?? { items: [] };
    const contents = tracks.contents ?? { items: [] };
    const screenTexts = tracks.screenTexts ?? { items: [] };
    linkEntries(contents, header.length);
    return {
        header, captions, contents, screenTexts,
        languages: languagesOf(description, captions),
        faults: reader.faults,
    };
}

function placeAt(text, offset) {
    const before = text.slice(0, offset);
    return { line: before.split('\n').length, column: offset - before.lastIndexOf('\n') };
}

function excerptAt(text, { line, column }) {
    const found = text.split('\n')[line - 1] ?? '';
    const begin = Math.max(0, column - 1 - excerptLength / 2);
    return found.slice(begin, begin + excerptLength);
}

// Where the document type declaration would be: after white space, comments and processing instructions.
function endOfProlog(text) {
    const part = /\s+|<\?[^]*?\?>|<!-{2}[^]*?-->/y;
    let end = 0;
    while (part.test(text)) end = part.lastIndex;
    return end;
}

/** Returns what the parser says of a text that is not XML: line, column and reason; undefined for XML. */
export function parserErrorIn(document) {
    const [error] = ['xhtml', 'errors'].flatMap((prefix) =>
        [...document.getElementsByTagNameNS(namespaces[prefix], 'parsererror')]);
    if (!error) return undefined;
    // Chromium and Safari have in a div: "error on line 1 at column 3: reason". Firefox has the lines "XML Parsing
    // Error: reason", the location, and "Line Number 1, Column 3:".
    const text = (childOf(error, 'xhtml:div') ?? error).textContent;
    const [, line = 1, column = 1] = /line (?:number )?(\d+)(?: at|,) column (\d+)/i.exec(text) ?? [];
    const reason = /(?:column \d+|parsing error): *(.+)/i.exec(text)?.[1] ?? '';
    return { line: Number(line), column: Number(column), reason };
}

/** Parses the text with the browser's parser and reads it. Throws a PacketError. */
export function parsePacket(text) {
    if (isBlank(text)) throw new PacketError('empty');
    // Its entities could make a small file fill the memory.
    const prolog = endOfProlog(text);
    if (text.startsWith('<!DOCTYPE', prolog)) {
        const place = placeAt(text, prolog);
        throw new PacketError('doctype', place, excerptAt(text, place));
    }
    const document = new DOMParser().parseFromString(text, 'application/xml');
    const error = parserErrorIn(document);
    if (error) throw new PacketError('malformed', error, excerptAt(text, error));
    return readPacket(document);
}

/** Returns the bytes that base64 stands for. */
export function decodeBase64(text) {
    const binary = atob(text);
    const bytes = new Uint8Array(binary.length);
    for (let i = 0; i < binary.length; ++i) bytes[i] = binary.charCodeAt(i);
    return bytes;
}

/** Decodes the bytes of a packet. Throws a PacketError if they are not UTF-8. */
export function decodePacket(bytes) {
    try {
        return new TextDecoder('utf-8', { fatal: true }).decode(bytes);
    } catch {
        // The decoder writes U+FFFD for what it cannot read, so that is where the encoded text first differs.
        const encoded = new TextEncoder().encode(new TextDecoder('utf-8', { ignoreBOM: true }).decode(bytes));
        let byte = encoded.findIndex((value, index) => value !== bytes[index]);
        while ((encoded[byte] & 0xc0) === 0x80) --byte;
        throw new PacketError('notUtf8', { byte });
    }
}
