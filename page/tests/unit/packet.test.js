import { DOMParser } from '@xmldom/xmldom';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import {
    PacketError, decodeBase64, decodePacket, parsePacket, parserErrorIn, readPacket,
} from '../../modules/packet.js';

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
        position: 0, start: 60000, end: 140000, vertical: 'top', horizontal: 'right',
        texts: new Map([['fr', ''], ['de', '<b>Tee</b>']]),
    });
    assert.match(captions.items[1].texts.get('fr'), /\n/);
});

test('entries last until the next one starts, the last one until the end of the video', () => {
    const { contents } = read(complete);
    assert.equal(contents.image, '<toc>.png');
    assert.deepEqual(contents.items, [
        { position: 0, start: 0, text: 'Boil', image: 'thumbs & more.png', index: '0', offset: '0', end: 5000 },
        {
            position: 1, start: 5000, text: 'Pour & drink', image: 'thumbs & more.png', index: '1', offset: '2048',
            end: 90500,
        },
    ]);
});

test('an entry without an image of its own has that of the track', () => {
    const { contents } = read(complete.replace('zelDM:image="thumbs &amp; more.png"', 'zelDM:image=""'));
    assert.deepEqual(contents.items.map(({ image }) => image), ['<toc>.png', 'thumbs & more.png']);
});

test('the offset of an image has every digit', () => {
    const { contents } = read(complete.replace('"2048"', '"18446744073709551615"'));
    assert.equal(contents.items[1].offset, '18446744073709551615');
});

test('screen texts have their own image property and entry', () => {
    assert.deepEqual(read(complete).screenTexts.items[1], {
        position: 1, start: 120000, end: 150000, text: 'Stop <now>', image: 'shots.png', index: '3', offset: '4096',
        entry: 1,
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

const forms = [
    ['properties of a structure in a description', (text) => text
        .replace(/<(xmpDM:duration|xmpDM:videoFrameSize|zel:fgColor)( [^>]*)><\/\1>/g,
            '<$1><rdf:Description$2/></$1>')],
    ['properties of a structure as elements, in a description', (text) => text
        .replace(/<xmpDM:duration [^>]*>/, '<xmpDM:duration><rdf:Description><xmpDM:scale>1/1000</xmpDM:scale>'
            + '<xmpDM:value>90500</xmpDM:value></rdf:Description>')],
    ['structures with parseType Resource', (text) => text
        .replace(/<xmpDM:videoFrameSize [^>]*>/, '<xmpDM:videoFrameSize rdf:parseType="Resource">'
            + '<stDim:w>640</stDim:w><stDim:h>480</stDim:h>')
        .replace(/<(zelDM:contentList)><rdf:Description>(.*)<\/rdf:Description><\/\1>/,
            '<$1 rdf:parseType="Resource">$2</$1>')
        .replace(/<(zelDM:controller)><rdf:Description [^>]*>(.*)<\/rdf:Description><\/\1>/,
            '<$1 rdf:parseType="Resource"><xmpDM:name>qmplayer</xmpDM:name>$2</$1>')],
    ['items with parseType Resource', (text) => text
        .replace(/<rdf:li (xmpDM:name="\d") xmpDM:value="([^"]*)"><\/rdf:li>/g,
            '<rdf:li rdf:parseType="Resource"><xmpDM:value>$2</xmpDM:value></rdf:li>')
        .replace(/<rdf:li (xmpDM:name="showsearch" [^>]*)><\/rdf:li>/, '<rdf:li><rdf:Description $1/></rdf:li>')],
    ['tracks in a description of their own', (text) => text
        .replace(/<xmpDM:Tracks>.*<\/xmpDM:Tracks>/s, '')
        .replace('</rdf:RDF>', () => `<rdf:Description rdf:about="">${/<xmpDM:Tracks>.*<\/xmpDM:Tracks>/s.exec(text)}`
            + '</rdf:Description></rdf:RDF>')],
];
for (const [name, change] of forms) {
    test(`RDF may have ${name}`, () => {
        const visible = complete.replace('"showsearch" xmpDM:value="false"', '"showsearch" xmpDM:value="true"');
        assert.notEqual(change(visible), visible);
        assert.deepEqual(read(change(visible)), read(visible));
    });
}

test('a description about something else does not belong to the packet', () => {
    const packet = read(complete.replace('<rdf:Description zel:version', '<rdf:Description rdf:about="x" zel:version')
        .replace('</rdf:RDF>', '<rdf:Description rdf:about="y" zelDM:thumbnail="y.png"/></rdf:RDF>'));
    assert.equal(packet.header.thumbnail, '');
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

test('opacity and colours have a form and a range', () => {
    const packet = read(complete.replace('zelDM:bgOpacity="0.25"', 'zelDM:bgOpacity="1.2.3"')
        .replace('xmpG:red="255"', 'xmpG:red="300"').replace('xmpG:green="127"', 'xmpG:green="-5"'));
    assert.deepEqual(packet.faults.map(({ property, value }) => [property, value]),
        [['zelDM:bgOpacity', '1.2.3'], ['xmpG:red', '300'], ['xmpG:green', '-5']]);
    assert.equal(packet.captions.opacity, 1);
    assert.deepEqual(packet.captions.colour, [0, 0, 254]);
});

test('tracks of unknown or repeated types are faults', () => {
    const { faults } = read(complete.replace('"ScreenText"', '"Caption"'));
    assert.deepEqual(faults.map(({ property, value }) => [property, value]), [['xmpDM:trackType', 'Caption']]);
});

test('items are sorted by their starts', () => {
    const { captions } = read(complete.replace('xmpDM:startTime="1500"', 'xmpDM:startTime="9000"'));
    assert.deepEqual(captions.items.map(({ start }) => start), [160000, 360000]);
});

test('an item keeps its position in the packet, whatever is left out before it', () => {
    const { contents } = read(complete.replace('xmpDM:startTime="0"', 'xmpDM:startTime="?"'));
    assert.deepEqual(contents.items.map(({ position, text }) => [position, text]), [[1, 'Pour & drink']]);
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

const places = [
    ['after a byte order mark', [0xef, 0xbb, 0xbf, 0x61, 0xe4, 0x62], 4],
    ['after a U+FFFD of the text', [0xef, 0xbf, 0xbd, 0xe4, 0x62], 3],
    ['at a byte that U+FFFD begins with', [0x61, 0xef, 0x41], 1],
    ['at the end', [0x61, 0xc3], 1],
];
for (const [name, bytes, byte] of places) {
    test(`the place that is not UTF-8 is right ${name}`, () => {
        assert.throws(() => decodePacket(Uint8Array.from(bytes)), (error) => error.values.byte === byte);
    });
}

const firefox = 'http://www.mozilla.org/newlayout/xml/parsererror.xml';
const messages = [
    ['Chromium', '<html xmlns="http://www.w3.org/1999/xhtml"><parsererror><h3>This page contains the following errors:</h3>'
        + '<div>error on line 1 at column 3: Unexpected end of stream\n</div><h3>Below is a rendering</h3></parsererror></html>',
    { line: 1, column: 3, reason: 'Unexpected end of stream' }],
    ['Firefox', `<parsererror xmlns="${firefox}">XML Parsing Error: no root element found\n`
        + 'Location: file:///line5/preview.html\nLine Number 2, Column 30:<sourcetext>\n^</sourcetext></parsererror>',
    { line: 2, column: 30, reason: 'no root element found' }],
    ['an unknown browser', `<parsererror xmlns="${firefox}">Oh</parsererror>`, { line: 1, column: 1, reason: '' }],
    ['nobody', '<x><parsererror>line 2, column 3: fine</parsererror></x>', undefined],
];
for (const [name, text, expected] of messages) {
    test(`an error of the parser is read as ${name} writes it`, () => {
        assert.deepEqual(parserErrorIn(new DOMParser().parseFromString(text, 'application/xml')), expected);
    });
}

test('only a declaration before the outermost element is a document type declaration', (context) => {
    globalThis.DOMParser = DOMParser;
    context.after(() => { delete globalThis.DOMParser; });
    const quoted = complete.replace('&lt;b&gt;Tee&lt;/b&gt;', '<![CDATA[<!DOCTYPE x>]]>');
    assert.equal(parsePacket(`<?xml version="1.0"?>\n<!-- <!DOCTYPE -->${quoted}`).captions.items[0].texts.get('de'), '<!DOCTYPE x>');
    const refused = (error) => error.key === 'doctype' && error.values.line === 2 && error.values.column === 6;
    assert.throws(() => parsePacket(`<?xml version="1.0"?>\n<?a?><!DOCTYPE x>${complete}`), refused);
    assert.throws(() => parsePacket(`${'<!--a-->'.repeat(5000)}<x`), /malformed|ParseError/);
});

test('base64 is decoded to bytes', () => {
    assert.deepEqual(decodeBase64('AP/+'), Uint8Array.of(0, 255, 254));
    assert.deepEqual(decodeBase64('Zg=='), Uint8Array.of(102));
});
