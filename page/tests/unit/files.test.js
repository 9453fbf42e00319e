import { DOMParser } from '@xmldom/xmldom';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import { addressBeside, readFirstPacket, sortFiles } from '../../modules/files.js';

const page = { protocol: 'file:' };

test('names of files beside the page become addresses', () => {
    assert.equal(addressBeside('a.mp4', page), 'a.mp4');
    assert.equal(addressBeside('my films/50 % #1?.mp4', page), 'my%20films/50%20%25%20%231%3F.mp4');
});

test('names that lead elsewhere have no address', () => {
    for (const name of ['', '/etc/x.png', '//host/x.png', '../x.png', 'a/../../x.png', './x.png', 'a//b'])
        assert.equal(addressBeside(name, page), undefined, name);
});

test('schemes are part of the name', () => {
    assert.equal(addressBeside('javascript:alert(1)', page), 'javascript%3Aalert(1)');
    assert.equal(addressBeside('https://host/x.png', page), undefined);
    assert.equal(addressBeside('\\\\host\\x.png', page), '%5C%5Chost%5Cx.png');
});

test('a page from a server asks for nothing', () => {
    assert.equal(addressBeside('a.mp4', { protocol: 'https:' }), undefined);
});

test('files are sorted by their types', () => {
    const files = ['video/webm', 'image/png', '', 'text/xml', 'audio/mpeg'].map((type) => ({ type }));
    assert.deepEqual(sortFiles(files), {
        videos: [files[0], files[4]], images: [files[1]], packets: [files[2], files[3]],
    });
});

function fileOf(name, text) {
    return { name, arrayBuffer: async () => new TextEncoder().encode(text).buffer };
}

test('the first file that is a packet is read, else the error of the one that was meant', async (context) => {
    globalThis.DOMParser = DOMParser;
    context.after(() => { delete globalThis.DOMParser; });
    const data = new URL('../../../tests/core/data/header.xmp', import.meta.url);
    const [empty, foreign, packet] = [fileOf('a.srt', ''), fileOf('b.xmp', '<x/>'), fileOf('c', readFileSync(data, 'utf8'))];
    const lost = { name: 'd.XMP', arrayBuffer: async () => { throw new Error('gone'); } };
    const found = async (...files) => {
        const result = await readFirstPacket(files);
        return [result.file, result.packet?.header.version ?? result.error?.key];
    };
    assert.deepEqual(await found(empty, foreign, packet, lost), [packet, '1.1.0']);
    assert.deepEqual(await found(empty, foreign, lost), [foreign, 'foreignRoot']);
    assert.deepEqual(await found(empty, lost), [lost, 'fileFailed']);
    assert.deepEqual(await found(empty), [empty, 'empty']);
    assert.deepEqual(await found(), [undefined, undefined]);
});
