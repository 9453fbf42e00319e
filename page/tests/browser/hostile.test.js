// Packets that try to become markup or script, and files that are no packets.
import assert from 'node:assert/strict';
import test from 'node:test';
import { golden, openPage, packetFile, pickFiles, publishCues, shownCaptions, until } from './support.js';

const attacks = [
    '</script><script>window.hacked = 1</script>',
    '<img src="x" onerror="window.hacked = 1">',
    '<svg onload="window.hacked = 1"></svg>',
    ']]><b onclick="window.hacked = 1">b</b>',
    '<!-- <script>window.hacked = 1</script>',
    '&lt;script&gt;window.hacked = 1&lt;/script&gt;',
    'javascript:window.hacked=1',
    '\'"><iframe srcdoc="<script>parent.hacked = 1</script>">',
    '${window.hacked = 1}{{window.hacked = 1}}',
    '@PACKET@ $& $` \u202e',
];

function escape(text) {
    return text.replace(/[&<>"']/g, (character) => `&#${character.charCodeAt(0)};`);
}

async function visitEverything(page) {
    for (const tab of await page.getByRole('tab').all()) await tab.click();
    await page.locator('#search').fill('a');
    await page.keyboard.press('Enter');
    await page.getByRole('tab', { name: 'Problems' }).click();
    for (const summary of await page.locator('#problems summary').all()) await summary.click();
    await page.getByRole('button', { name: 'Next caption' }).click();
}

async function assertHarmless(page) {
    assert.equal(await page.evaluate(() => window.hacked), undefined);
    assert.equal(await page.locator('script').count(), 3);
    assert.equal(await page.locator('iframe, object, embed, link, base, [onerror], [onload], [onclick]').count(), 0);
    // The policy complains about what it stops: handlers in a packet, styles of the parser's own messages.
    assert.deepEqual(page.errors.filter((error) => !/Executing inline event|Applying inline style/.test(error)), []);
    assert.ok(page.requests.every((url) => url.startsWith(page.folder)), page.requests.join());
}

test('texts of every field stay texts', async () => {
    for (const attack of attacks) {
        const text = escape(attack);
        const packet = golden
            .replace(/(dc:title|dc:creator|dc:Description|dc:source|zelDM:keywords|dc:date|zelDM:thumbnail)="[^"]*"/g,
                (_, name) => `${name}="${text}"`)
            .replace(/(zel:version|stFnt:fontFamily|zelDM:valign|zelDM:image|xmpDM:image)="[^"]*"/g,
                (_, name) => `${name}="${text}"`)
            .replace(/xmpDM:name="(Boil|Pour[^"]*|Click Save|Stop[^"]*)"/g, () => `xmpDM:name="${text}"`)
            .replace(/xmpDM:value="(intro.mp4|it[^"]*)"/g, () => `xmpDM:value="${text}"`)
            .replace(/>(French|German)</g, () => `>${text}<`)
            .replace('&lt;b&gt;Tee&lt;/b&gt;', () => text);
        const page = await openPage(packet);
        assert.equal(await page.locator('#title').textContent(), attack);
        await visitEverything(page);
        await page.locator('#first-language').selectOption('de');
        assert.deepEqual(await shownCaptions(page), [['de', attack]]);
        await assertHarmless(page);
        await page.context().close();
    }
});

test('language IDs are compared, never run', async () => {
    const attack = escape('__proto__"><img onerror=window.hacked=1>');
    const page = await openPage(golden.replaceAll('xml:lang="de"', `xml:lang="${attack}"`));
    await visitEverything(page);
    await page.locator('#first-language').selectOption({ index: 1 });
    assert.equal((await shownCaptions(page))[0][1], '<b>Tee</b>');
    await assertHarmless(page);
});

test('texts that the tool publishes stay texts', async () => {
    const cues = attacks.filter((text) => !text.includes('\u202e')).map((text, index) => [index * 1000, index * 1000 + 900, text]);
    const page = await openPage(publishCues({ captions: { en: cues }, contents: cues, screenTexts: cues }));
    for (const [, , text] of cues) {
        assert.deepEqual(await shownCaptions(page), [['en', text]]);
        await page.getByRole('button', { name: 'Next caption' }).click();
    }
    await visitEverything(page);
    await assertHarmless(page);
});

test('elements of other vocabularies in a packet do nothing', async () => {
    const page = await openPage(golden.replace('&lt;b&gt;Tee&lt;/b&gt;',
        '<h:script xmlns:h="http://www.w3.org/1999/xhtml">window.hacked = 1</h:script>'
        + '<h:img xmlns:h="http://www.w3.org/1999/xhtml" src="x" onerror="window.hacked = 1"/><![CDATA[<b>]]>'));
    await page.getByRole('button', { name: 'Next caption' }).click();
    await page.locator('#first-language').selectOption('de');
    assert.deepEqual(await shownCaptions(page), [['de', 'window.hacked = 1<b>']]);
    await assertHarmless(page);
});

test('names of files never lead away from the folder of the page', async () => {
    const names = ['https://example.invalid/x.png', '//example.invalid/x.png', '../x.png', 'data:image/png;base64,AA',
        'blob:null/x', '/etc/passwd', '\\\\example.invalid\\x.png'];
    const page = await openPage(golden
        .replaceAll('image="shots.png"', `image="${names[0]}"`)
        .replaceAll('image="thumbs &amp; more.png"', `image="${names[1]}"`)
        .replace(/<rdf:Seq>(<rdf:li xmpDM:name="0")/, (_, item) =>
            `<rdf:Seq>${names.map((name) => `<rdf:li xmpDM:name="9" xmpDM:value="${name}"></rdf:li>`).join('')}${item}`));
    await visitEverything(page);
    await assertHarmless(page);
});

test('the policy of the page stops scripts, styles and connections that it does not contain', async () => {
    const page = await openPage(golden);
    const blocked = await page.evaluate(async () => {
        const names = [];
        document.addEventListener('securitypolicyviolation', (event) => names.push(event.effectiveDirective));
        const add = (name, text) => {
            const made = document.createElement(name);
            made.textContent = text;
            document.body.append(made);
        };
        add('script', 'window.hacked = 1');
        add('style', 'body { color: red }');
        document.body.setAttribute('onclick', 'window.hacked = 1');
        document.body.setAttribute('style', 'color: red');
        await fetch('https://example.invalid/').catch(() => {});
        const image = new Image();
        image.src = 'https://example.invalid/x.png';
        await new Promise((resolve) => setTimeout(resolve, 300));
        return names.map((name) => name.replace(/-(elem|attr)$/, '')).sort();
    });
    assert.deepEqual(blocked, ['connect-src', 'img-src', 'script-src', 'script-src', 'style-src', 'style-src']);
    assert.equal(await page.evaluate(() => window.hacked), undefined);
});

const refusals = [
    ['empty', '  \n', /it is empty/, ''],
    ['not finished', '<x', /^The packet is broken\. Line 1, column 3: Unexpected end of stream$/, /^<x$/],
    ['broken', golden.replace('</rdf:Alt>', '</rdf:Al>'), /broken\. Line 2, column \d+/, /rdf:Al>/],
    ['cut off', golden.slice(0, 3000),
        /^The packet is broken\. Line 3, column [\d,]+: Unexpected end of stream: still inside the root element$/, null],
    ['text', 'Hello', /^The packet is broken\. Line 1, column 1: Unexpected characters outside the root element: H$/, /^Hello$/],
    ['an undeclared entity', golden.replace('Tea &amp;', 'Tea &bomb;'), /^The packet is broken\. Line 1, column \d+: Unexpected entity: bomb$/, /&bomb;/],
    ['an unescaped character', golden.replace('Ann', 'A<nn'), /^The packet is broken\. Line 1, column \d+: '<' is not allowed in attributes$/, /A<nn/],
    ['entities that grow', `<!DOCTYPE x [<!ENTITY a "aaaa"><!ENTITY b "&a;&a;&a;&a;">]>\n${golden}`,
        /document type declaration\. Line 1, column 1/, /^<!DOCTYPE/],
    ['an external entity', `<!DOCTYPE x [<!ENTITY a SYSTEM "file:///etc/passwd">]><x>&a;</x>`, /document type/, /SYSTEM/],
    ['a web page', '<html xmlns="http://www.w3.org/1999/xhtml"><script>window.hacked = 1</script></html>',
        /outermost element is <html>, not <x:xmpmeta>/, ''],
    ['a foreign root of the same name', '<x:xmpmeta xmlns:x="urn:other"/>', /outermost element is <x:xmpmeta xmlns:x="urn:other">, not <x:xmpmeta>/, ''],
    ['XMP of another program', '<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF '
        + 'xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description/></rdf:RDF></x:xmpmeta>',
    /<rdf:RDF> contains no <rdf:Description> with zel:version/, ''],
    ['not UTF-8', Buffer.from('<x>\u00e4</x>', 'latin1'), /byte 3 is not UTF-8/, ''],
];

for (const [name, content, message, excerpt] of refusals) {
    test(`a file that is ${name} gets a clear message, and the page keeps what it shows`, async () => {
        const page = await openPage(golden);
        await pickFiles(page, packetFile(content));
        await until(page, () => document.getElementById('error-text').textContent !== '');
        assert.match(await page.locator('#error-text').textContent(), message);
        const shown = await page.locator('#error-excerpt').textContent();
        if (excerpt === '') assert.equal(shown, '');
        else if (excerpt !== null) assert.match(shown, excerpt);
        assert.equal(await page.locator('#title').textContent(), 'Tea & "Time"');
        await assertHarmless(page);
        await page.getByRole('button', { name: 'Dismiss' }).click();
        assert.equal(await page.locator('#error-text').isVisible(), false);
    });
}

test('what only looks like a refused packet opens', async () => {
    const page = await openPage(golden.replace('&lt;b&gt;Tee&lt;/b&gt;', '<![CDATA[<!DOCTYPE x>]]>')
        .replace('<xmpDM:Tracks>', '<parsererror>line 1 at column 2: fine</parsererror><xmpDM:Tracks>'));
    assert.equal(await page.locator('#title').textContent(), 'Tea & "Time"');
    assert.equal(await page.locator('#error-text').textContent(), '');
});

test('a broken packet in the page itself gets the same message', async () => {
    const page = await openPage('<x>');
    assert.match(await page.locator('#error-text').textContent(), /broken/);
    assert.equal(await page.locator('#welcome').isVisible(), true);
});

test('a packet with unreadable values shows the rest, and lists them', async () => {
    const page = await openPage(golden
        .replace('xmpDM:startTime="6000"', 'xmpDM:startTime="soon"')
        .replace('xmpDM:value="90500"', 'xmpDM:value=""')
        .replace('zelDM:bgOpacity="0.25"', 'zelDM:bgOpacity="1.2.3"').replace('xmpG:red="255"', 'xmpG:red="300"'));
    await page.getByRole('tab', { name: 'Problems' }).click();
    await page.locator('#problems summary').first().click();
    assert.deepEqual(await page.locator('#problems .row').allTextContents(), [
        'header, xmpDM:value: \u201c\u201d', 'track 1, zelDM:bgOpacity: \u201c1.2.3\u201d',
        'track 1, xmpG:red: \u201c300\u201d',
        'screen text 2, xmpDM:startTime: \u201csoon\u201d',
    ]);
    assert.equal(await page.locator('.lane').count(), 4);
    assert.deepEqual(page.errors, []);
});

test('extreme numbers do no harm', async () => {
    const page = await openPage(golden
        .replace('xmpDM:duration="1500"', 'xmpDM:duration="9223372036854775807"')
        .replace('xmpDM:startTime="1500"', 'xmpDM:startTime="-9223372036854775808"')
        .replace('stDim:w="640"', 'stDim:w="0"').replace('zelDM:fontSize="24"', 'zelDM:fontSize="0"')
        .replace('xmpG:red="255"', 'xmpG:red="99999"'));
    await visitEverything(page);
    await page.getByRole('button', { name: 'Play' }).click();
    assert.deepEqual(page.errors, []);
});
