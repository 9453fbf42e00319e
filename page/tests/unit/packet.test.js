import { DOMParser } from '@xmldom/xmldom';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import { PacketError, decodeBase64, decodePacket, readPacket } from '../../modules/packet.js';

const golden = new URL('../../../tests/core/data/', import.meta.url);
const complete = readFileSync(new URL('header-captions-toc-screentext.xmp', golden), 'utf8');

function read(text) {
    return readPacket(new DOMParser().parseFromString(text, 'application/xml'));
}

function refuses(text, key) {
    assert.throws(() => read(text), (error) => error instanceof PacketError && error.key === key);
}

test('the header of a packet is read as a whole', () => {
    assert.deepEqual(read(complete).header, {
        version: '1.1.0', title: 'Tea & "Time"', date: 'DATE', creator: 'Ann \'n\' Bo',
        // A reader turns the line feed of an attribute into a space.
        description: 'one < two \u8336 \ud83c\udf75', source: 'Recorder - 2.0', isExplicit: true,
        keywords: ['a', 'b & c'], thumbnail: '', firstFrame: '', length: 90500, width: 640, height: 480,
        hasSearchBar: false, files: ['intro.mp4', 'it\'s.xml'],
    });
});

test('captions have their style, their times in milliseconds and their texts', () => {
    const { captions, languages } = read(complete);
    assert.deepEqual(languages, [{ id: 'fr', name: 'French' }, { id: 'de', name: 'German' }]);
    assert.deepEqual({ ...captions, items: captions.items.length }, {
        rate: 25, fontFamily: 'Courier', fontSize: 24, opacity: 0.25, colour: [255, 127, 254],
        background: [0, 63, 0], items: 2,
    });
    assert.deepEqual(captions.items[0], {
        start: 60000, end: 140000, vertical: 'top', horizontal: 'right',
        texts: new Map([['fr', ''], ['de', '<b>Tee</b>']]),
    });
    assert.match(captions.items[1].texts.get('fr'), /\n/);
});

test('entries last until the next one starts, the last one until the end of the video', () => {
    const { contents } = read(complete);
    assert.equal(contents.image, '<toc>.png');
    assert.deepEqual(contents.items, [
        { start: 0, text: 'Boil', image: 'thumbs & more.png', index: 0, offset: 0, end: 5000 },
        { start: 5000, text: 'Pour & drink', image: 'thumbs & more.png', index: 1, offset: 2048, end: 90500 },
    ]);
});

test('screen texts have their own image property and entry', () => {
    assert.deepEqual(read(complete).screenTexts.items[1], {
        start: 120000, end: 150000, text: 'Stop <now>', image: 'shots.png', index: 3, offset: 4096, entry: 1,
    });
});

test('a packet of the library has no faults, whichever sets it has', () => {
    for (const sets of ['header', 'header-captions', 'header-toc', 'header-screentext',
        'header-captions-toc', 'header-captions-screentext', 'header-toc-screentext', 'header-captions-toc-screentext']) {
        const packet = read(readFileSync(new URL(`${sets}.xmp`, golden), 'utf8'));
        assert.deepEqual(packet.faults, []);
        assert.equal(packet.captions.items.length > 0, sets.includes('captions'));
        assert.equal(packet.contents.items.length > 0, sets.includes('toc'));
        assert.equal(packet.screenTexts.items.length > 0, sets.includes('screentext'));
    }
});

test('prefixes do not matter, namespaces do', () => {
    assert.deepEqual(read(complete.replaceAll('xmpDM:', 'other:').replaceAll(':xmpDM', ':other')), read(complete));
    refuses(complete.replace('xmlns:zel="http://ns.zel.example/xmp/zel/"', 'xmlns:zel="urn:x"'), 'foreignContent');
});

test('properties may be elements, and descriptions may be left out, as RDF has it', () => {
    const text = complete
        .replace('dc:creator="Ann \'n\' Bo"', '')
        .replace('<xmpDM:duration', '<dc:creator>Ann \'n\' Bo</dc:creator><xmpDM:duration')
        .replace(/<rdf:li><rdf:Description (xmpDM:name="Boil"[^>]*)><\/rdf:Description>/, '<rdf:li $1>');
    assert.notEqual(text, complete);
    assert.deepEqual(read(text), read(complete));
});

test('a value that cannot be read is a fault with its place', () => {
    const packet = read(complete
        .replace('xmpDM:startTime="6000"', 'xmpDM:startTime="soon"')
        .replace('zelDM:fontSize="24"', 'zelDM:fontSize="big"')
        .replace('zelDM:imageindex="1"', 'zelDM:imageindex=""'));
    assert.deepEqual(packet.faults, [
        { place: { key: 'faultOfTrack', number: 1 }, property: 'zelDM:fontSize', value: 'big' },
        { place: { key: 'faultOfEntry', number: 2, time: 5000 }, property: 'zelDM:imageindex', value: '' },
        { place: { key: 'faultOfScreenText', number: 2 }, property: 'xmpDM:startTime', value: 'soon' },
    ]);
    assert.equal(packet.screenTexts.items.length, 1);
    assert.equal(packet.captions.fontSize, 20);
});

test('tracks of unknown or repeated types are faults', () => {
    const { faults } = read(complete.replace('"ScreenText"', '"Caption"'));
    assert.deepEqual(faults.map(({ property, value }) => [property, value]), [['xmpDM:trackType', 'Caption']]);
});

test('items are sorted by their starts', () => {
    const { captions } = read(complete.replace('xmpDM:startTime="1500"', 'xmpDM:startTime="9000"'));
    assert.deepEqual(captions.items.map(({ start }) => start), [160000, 360000]);
});

test('languages of texts that the list does not name are languages too', () => {
    const { languages } = read(complete.replace('<rdf:li xml:lang="fr">French</rdf:li>', ''));
    assert.deepEqual(languages, [{ id: 'de', name: 'German' }, { id: 'fr', name: 'fr' }]);
});

test('other documents are refused', () => {
    refuses('<html/>', 'foreignRoot');
    refuses('<xmpmeta/>', 'foreignRoot');
    refuses('<x:xmpmeta xmlns:x="adobe:ns:meta/"/>', 'foreignContent');
    refuses(complete.replace('zel:version="1.1.0"', ''), 'foreignContent');
});

test('bytes that are not UTF-8 are refused with their place', () => {
    const bytes = Uint8Array.of(0x61, 0xc3, 0xa4, 0xe4, 0x62);
    assert.throws(() => decodePacket(bytes), (error) => error.key === 'notUtf8' && error.values.byte === 3);
    assert.equal(decodePacket(Uint8Array.of(0xef, 0xbb, 0xbf, 0x61)), 'a');
});

test('base64 is decoded to bytes', () => {
    assert.deepEqual(decodeBase64('AP/+'), Uint8Array.of(0, 255, 254));
    assert.deepEqual(decodeBase64('Zg=='), Uint8Array.of(102));
});
