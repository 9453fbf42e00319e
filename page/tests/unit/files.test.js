import assert from 'node:assert/strict';
import test from 'node:test';
import { addressBeside, sortFiles } from '../../modules/files.js';

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
