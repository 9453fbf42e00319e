import { plainText } from './rich-text.js';

const namespaces = {
    dc: 'http://purl.org/dc/elements/1.1/',
    rdf: 'http://www.w3.org/1999/02/22-rdf-syntax-ns#',
    stDim: 'http://ns.adobe.com/xap/1.0/sType/Dimensions#',
    stFnt: 'http://ns.adobe.com/xap/1.0/sType/Font#',
    x: 'adobe:ns:meta/',
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

// RDF lets properties be in a description inside an element or in the element itself.
function resourceIn(node) {
    return childOf(node, 'rdf:Description') ?? node;
}

// RDF lets a simple property be an attribute or an element.
function valueOf(resource, name) {
    const [namespace, local] = resolve(name);
    return resource?.getAttributeNS(namespace, local) || (childOf(resource, name)?.textContent ?? '');
}

function itemsOf(resource, name, container) {
    return childrenOf(childOf(resource, name, container), 'rdf:li');
}

class PacketReader {
    // What is not as the format says: the place ({key, number, time}), the name and value of the property.
    faults = [];

    number(resource, name, place, pattern = /^[+-]?\d+$/) {
        const value = valueOf(resource, name);
        if (pattern.test(value)) return Number(value);
        this.faults.push({ place, property: name, value });
        return undefined;
    }

    header(description, place) {
        const duration = childOf(description, 'xmpDM:duration');
        const scale = /^(\d+)\/([1-9]\d*)$/.exec(valueOf(duration, 'xmpDM:scale')) ?? [, 1, 1000];
        const size = childOf(description, 'xmpDM:videoFrameSize');
        const parameters = itemsOf(
            childOf(description, 'zelDM:controller', 'rdf:Description'), 'zelDM:parameters', 'rdf:Bag');
        const search = parameters.find((parameter) => valueOf(parameter, 'xmpDM:name') === 'showsearch');
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
                (this.number(duration, 'xmpDM:value', place, /^\d+$/) ?? 0) * 1000 * scale[1] / scale[2]),
            width: this.number(size, 'stDim:w', place, /^\d+$/) ?? 0,
            height: this.number(size, 'stDim:h', place, /^\d+$/) ?? 0,
            hasSearchBar: valueOf(search, 'xmpDM:value') === 'true',
            files: itemsOf(
                childOf(description, 'zelDM:contentList', 'rdf:Description'), 'zelDM:files', 'rdf:Seq')
                .map((file) => valueOf(file, 'xmpDM:value')),
        };
    }

    rate(track, place) {
        const value = valueOf(track, 'xmpDM:frameRate');
        if (/^f[1-9]\d*$/.test(value)) return Number(value.slice(1));
        this.faults.push({ place, property: 'xmpDM:frameRate', value });
        return 1000;
    }

    // The items of a track in the order of their starts; those without a readable start are left out.
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
                return readItem(resource, start, milliseconds, place);
            })
            .filter((item) => item !== undefined)
            .sort((a, b) => a.start - b.start);
    }

    image(resource, name, place) {
        return {
            image: valueOf(resource, name),
            index: this.number(resource, 'zelDM:imageindex', place) ?? 0,
            offset: this.number(resource, 'zelDM:imageoffset', place) ?? 0,
        };
    }

    colour(track, name, place) {
        const colour = childOf(track, name);
        return ['xmpG:red', 'xmpG:green', 'xmpG:blue'].map((component) => this.number(colour, component, place) ?? 0);
    }

    captions(track, place) {
        const rate = this.rate(track, place);
        return {
            rate,
            fontFamily: valueOf(track, 'stFnt:fontFamily'),
            fontSize: this.number(track, 'zelDM:fontSize', place) ?? 20,
            opacity: this.number(track, 'zelDM:bgOpacity', place, /^[\d.]+(e[+-]?\d+)?$/) ?? 1,
            colour: this.colour(track, 'zel:fgColor', place),
            background: this.colour(track, 'zel:bgColor', place),
            items: this.items(track, rate, 'faultOfCaption', (resource, start, milliseconds) => ({
                start,
                end: start + (milliseconds('xmpDM:duration') ?? 0),
                vertical: valueOf(resource, 'zelDM:valign'),
                horizontal: valueOf(resource, 'zelDM:halign'),
                texts: new Map(itemsOf(resource, 'xmpDM:name', 'rdf:Alt').map((text) =>
                    [valueOf(text, 'xml:lang'), plainText(text.textContent)])),
            })),
        };
    }

    contents(track, place) {
        const rate = this.rate(track, place);
        return {
            rate,
            image: valueOf(track, 'zelDM:image'),
            items: this.items(track, rate, 'faultOfEntry', (resource, start, _, itemPlace) => ({
                start,
                text: valueOf(resource, 'xmpDM:name'),
                ...this.image(resource, 'zelDM:image', itemPlace),
            })),
        };
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
        [valueOf(item, 'xml:lang'), item.textContent]));
    const used = new Set(captions.items.flatMap((caption) => [...caption.texts.keys()]));
    const listed = [...names.keys()].filter((id) => used.has(id));
    return [...new Set([...listed, ...used])].map((id) => ({ id, name: names.get(id) ?? id }));
}

function linkEntries(contents, length) {
    contents.items.forEach((entry, index) => {
        entry.end = contents.items[index + 1]?.start ?? Math.max(length, entry.start);
    });
}

/** Reads the document of a packet. Throws a PacketError if it is another one. */
export function readPacket(document) {
    const root = document.documentElement;
    if (!isNamed(root, 'x:xmpmeta'))
        throw new PacketError('foreignRoot', { found: `<${root.nodeName}>`, expected: '<x:xmpmeta>' });
    const rdf = childOf(root, 'rdf:RDF');
    if (!rdf) throw new PacketError('foreignContent', { parent: '<x:xmpmeta>', expected: '<rdf:RDF>' });
    const description = childrenOf(rdf, 'rdf:Description').find((node) => valueOf(node, 'zel:version') !== '');
    if (!description)
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

/** Parses the text with the browser's parser and reads it. Throws a PacketError. */
export function parsePacket(text) {
    if (text.trim() === '') throw new PacketError('empty');
    // Its entities could make a small file fill the memory.
    const doctype = text.indexOf('<!DOCTYPE');
    if (doctype >= 0) {
        const place = placeAt(text, doctype);
        throw new PacketError('doctype', place, excerptAt(text, place));
    }
    const document = new DOMParser().parseFromString(text, 'application/xml');
    const error = document.getElementsByTagName('parsererror')[0];
    if (error) {
        const [, line = 1, column = 1] = /line\D*(\d+)\D+(\d+)/i.exec(error.textContent) ?? [];
        const place = { line: Number(line), column: Number(column) };
        const reason = /column \d+: *(.+)/i.exec(error.textContent)?.[1] ?? '';
        throw new PacketError('malformed', { ...place, reason }, excerptAt(text, place));
    }
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
        const decoded = new TextDecoder('utf-8').decode(bytes);
        const valid = decoded.slice(0, decoded.indexOf('\ufffd'));
        throw new PacketError('notUtf8', { byte: new TextEncoder().encode(valid).length });
    }
}
