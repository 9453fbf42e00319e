// The page for everybody: by keyboard, on small screens, in the colours of the system, for screen readers.
import axe from 'axe-core';
import assert from 'node:assert/strict';
import test from 'node:test';
import { golden, openPage, packetFile, pickFiles, publishSample, shownCaptions, until } from './support.js';

const sample = publishSample();

async function findingsIn(page, state) {
    const { violations } = await page.evaluate(() => window.axe.run());
    return violations.flatMap(({ id, nodes }) => nodes.map(({ html }) => `${state}: ${id}: ${html}`));
}

const appearances = [
    ['light', { colorScheme: 'light' }], ['dark', { colorScheme: 'dark' }], ['forced', { forcedColors: 'active' }],
    ['dark forced', { colorScheme: 'dark', forcedColors: 'active' }],
];
for (const [name, colours] of appearances) {
    for (const width of [1280, 320]) {
        test(`axe finds nothing in ${name} colours, ${width} pixels wide`, async () => {
            const page = await openPage(undefined, { viewport: { width, height: 800 }, ...colours });
            // As a person with the developer tools: the policy of the page does not apply to it.
            await page.evaluate(axe.source);
            const findings = await findingsIn(page, 'no packet');
            await pickFiles(page, packetFile('<x>'));
            await until(page, () => document.getElementById('error-text').textContent !== '');
            findings.push(...await findingsIn(page, 'error'));
            await pickFiles(page, packetFile(sample));
            await until(page, () => document.getElementById('title').textContent === 'The Paper Boat');
            await page.getByRole('button', { name: 'Next caption' }).click();
            await page.locator('#second-language').selectOption('ar');
            await page.locator('#search').fill('fold');
            await page.keyboard.press('Enter');
            for (const tab of await page.getByRole('tab').all()) {
                await tab.click();
                for (const summary of await page.locator('#problems summary').all())
                    if (await summary.isVisible()) await summary.click();
                findings.push(...await findingsIn(page, await tab.innerText()));
            }
            await page.getByRole('button', { name: 'Keyboard' }).click();
            findings.push(...await findingsIn(page, 'dialog'));
            const reported = await openPage(sample, { viewport: { width, height: 800 }, ...colours });
            await reported.evaluate(axe.source);
            await reported.getByRole('tab', { name: 'Problems' }).click();
            for (const summary of await reported.locator('#problems summary').all()) await summary.click();
            findings.push(...await findingsIn(reported, 'report'));
            assert.deepEqual(findings, []);
        });
    }
}

async function assertFits(page) {
    for (const tab of await page.getByRole('tab').all()) {
        await tab.click();
        assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= window.innerWidth), await tab.innerText());
    }
}

test('a window of 320 pixels needs no horizontal scrolling', async () => {
    const page = await openPage(sample, { viewport: { width: 320, height: 600 } });
    await assertFits(page);
    const long = 'x'.repeat(300);
    const other = await openPage(golden.replace('Tea &amp;', long).replace('Boil', long).replaceAll('shots.png', `${long}.png`)
        .replace('>French<', `>${long}<`), { viewport: { width: 320, height: 600 } });
    await assertFits(other);
});

test('a zoom of 200 % needs no horizontal scrolling', async () => {
    // A browser that zooms tells the page half of the pixels.
    await assertFits(await openPage(sample, { viewport: { width: 640, height: 400 }, deviceScaleFactor: 2 }));
    await assertFits(await openPage(sample, { viewport: { width: 512, height: 384 }, deviceScaleFactor: 2 }));
});

test('text of twice the size fits as well', async () => {
    const page = await openPage(sample);
    await page.evaluate(() => { document.documentElement.style.fontSize = '200%'; });
    await assertFits(page);
});

test('everything that can be pressed is at least 24 pixels wide and high', async () => {
    for (const width of [1280, 320]) {
        const page = await openPage(sample, { viewport: { width, height: 800 } });
        const small = [];
        for (const tab of await page.getByRole('tab').all()) {
            await tab.click();
            small.push(...await page.evaluate(() =>
                [...document.querySelectorAll('button, select, input, summary, [role=slider], .lane-track')]
                    .filter((node) => node.checkVisibility())
                    .map((node) => [node.id || node.className, node.getBoundingClientRect()])
                    .filter(([, box]) => box.width < 24 || box.height < 24)
                    .map(([name, box]) => `${name} ${box.width} x ${box.height}`)));
        }
        assert.deepEqual(small, []);
    }
});

test('nothing moves by itself if the user wants less motion', async () => {
    const durations = (page) => page.evaluate(() => [...document.querySelectorAll('*')]
        .filter((node) => getComputedStyle(node).transitionDuration !== '0s' || getComputedStyle(node).animationName !== 'none').length);
    assert.ok(await durations(await openPage(sample, { reducedMotion: 'no-preference' })) > 0);
    assert.equal(await durations(await openPage(sample, { reducedMotion: 'reduce' })), 0);
});

test('dark and light follow the system', async () => {
    const background = (page) => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
    assert.equal(await background(await openPage(sample, { colorScheme: 'light' })), 'rgb(246, 245, 242)');
    assert.equal(await background(await openPage(sample, { colorScheme: 'dark' })), 'rgb(20, 22, 25)');
});

test('a screen reader meets landmarks, names, states and texts', async () => {
    const page = await openPage(sample);
    assert.match(await page.locator('body').ariaSnapshot(), new RegExp([
        '- banner:', 'heading "The Paper Boat" \\[level=1\\]', '- search:', 'searchbox "Search"',
        '- main:', '- region "Player":', 'button "Previous caption"', 'button "Play"', 'button "Next caption"',
        'combobox "Speed"', 'combobox "Captions"', 'combobox "Second captions"',
        '- group "Timeline of captions, contents and screen texts":', '- slider "Position"',
        '- region "Lists":', '- tablist "Lists":', 'tab "Transcript" \\[selected\\]', 'tab "Problems 12"',
        '- tabpanel "Transcript":', 'combobox "Language of the transcript"', 'checkbox "Follow the video" \\[checked\\]',
        '- list "Transcript":', '- listitem:', 'button "00:00:00.500 A paper boat & a rainy day"',
    ].join('[^]*')));
    const slider = page.getByRole('slider');
    assert.equal(await slider.getAttribute('aria-valuetext'), '0 seconds of 32 seconds');
    const row = page.locator('#transcript-rows [role=listitem]').first();
    assert.equal(await row.getAttribute('aria-posinset'), '1');
    assert.equal(await row.getAttribute('aria-setsize'), '7');
    assert.equal(await page.getAttribute('html', 'lang'), 'en');
});

test('the seek bar has the keys of a slider', async () => {
    const page = await openPage(sample);
    const slider = page.getByRole('slider');
    const press = async (key) => {
        await slider.press(key);
        return [await page.locator('#time').innerText(), await slider.getAttribute('aria-valuenow')];
    };
    assert.deepEqual(await press('ArrowRight'), ['00:00:01.000', '1']);
    assert.deepEqual(await press('ArrowUp'), ['00:00:02.000', '2']);
    assert.deepEqual(await press('ArrowLeft'), ['00:00:01.000', '1']);
    assert.deepEqual(await press('ArrowDown'), ['00:00:00.000', '0']);
    assert.deepEqual(await press('ArrowDown'), ['00:00:00.000', '0']);
    assert.deepEqual(await press('PageUp'), ['00:00:10.000', '10']);
    assert.deepEqual(await press('End'), ['00:00:32.000', '32']);
    assert.deepEqual(await press('PageDown'), ['00:00:22.000', '22']);
    assert.equal(await slider.getAttribute('aria-valuetext'), '22 seconds of 32 seconds');
    assert.deepEqual(await press('Home'), ['00:00:00.000', '0']);
});

test('the seek bar follows the pointer', async () => {
    const page = await openPage(sample);
    const { x, y, width, height } = await page.locator('#seek-bar').boundingBox();
    await page.mouse.move(x + width / 4, y + height / 2);
    await page.mouse.down();
    assert.match(await page.locator('#time').innerText(), /^00:00:0[78]\./);
    await page.mouse.move(x + width / 2, y + 200);
    assert.match(await page.locator('#time').innerText(), /^00:00:1[56]\./);
    await page.mouse.up();
    await page.mouse.move(x, y);
    assert.match(await page.locator('#time').innerText(), /^00:00:1[56]\./);
});

// What has the focus: its ID, or its text.
function focused(page) {
    return page.evaluate(() => document.activeElement.id || document.activeElement.textContent.trim());
}

async function tabTo(page, id) {
    for (let presses = 0; presses < 40; ++presses) {
        await page.keyboard.press('Tab');
        if (await focused(page) === id) return;
    }
    assert.fail(`${id} is no tab stop`);
}

test('the tab key visits every control, in the order of the page, and each shows the focus', async () => {
    const page = await openPage(sample);
    const visited = [];
    for (;;) {
        await page.keyboard.press('Tab');
        if (await page.evaluate(() => document.activeElement === document.body)) break;
        visited.push(await focused(page));
        const outline = await page.evaluate(() => getComputedStyle(document.activeElement).outline);
        assert.match(outline, /3px/, visited.at(-1));
        assert.ok(visited.length < 40, visited.join());
    }
    assert.deepEqual(visited, ['search', 'open', 'help', 'previous', 'play', 'next', 'speed', 'first-language',
        'second-language', 'seek-bar', 'tab-transcript', 'transcript-language', 'follow',
        '00:00:00.500A paper boat & a rainy day']);
});

test('the whole page works by keyboard alone', async () => {
    const page = await openPage(undefined);
    await page.keyboard.press('Tab');
    await tabTo(page, 'welcome-open');
    const chooser = page.waitForEvent('filechooser');
    await page.keyboard.press('Enter');
    await (await chooser).setFiles([packetFile(sample)]);
    await until(page, () => document.getElementById('title').textContent === 'The Paper Boat');

    await tabTo(page, 'play');
    await page.keyboard.press('Space');
    await until(page, () => document.getElementById('play').getAttribute('aria-label') === 'Pause');
    await page.keyboard.press('Space');
    await until(page, () => document.getElementById('play').getAttribute('aria-label') === 'Play');

    await tabTo(page, 'second-language');
    await page.keyboard.type('Jap');
    assert.equal(await page.locator('#second-language').inputValue(), 'ja');
    await tabTo(page, 'seek-bar');
    await page.keyboard.press('Home');
    await page.keyboard.press('ArrowRight');
    assert.equal((await shownCaptions(page)).length, 2);

    // The tabs: the arrow keys select, and wrap around.
    await tabTo(page, 'tab-transcript');
    await page.keyboard.press('ArrowLeft');
    assert.equal(await focused(page), 'tab-details');
    await page.keyboard.press('Tab');
    assert.equal(await focused(page), 'panel-details');
    await page.keyboard.press('Shift+Tab');
    await page.keyboard.press('ArrowLeft');
    assert.equal(await focused(page), 'tab-problems');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    await until(page, () => document.querySelectorAll('#problems .row').length === 1);
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    assert.equal(await page.locator('#time').innerText(), '00:00:16.000');

    // A list: one tab stop, the arrow keys move.
    await page.locator('#tab-problems').focus();
    await page.keyboard.press('Home');
    await tabTo(page, 'follow');
    await page.keyboard.press('Space');
    assert.equal(await page.locator('#follow').isChecked(), false);
    await page.keyboard.press('Tab');
    await page.keyboard.press('End');
    assert.match(await focused(page), /^00:00:26\.000/);
    await page.keyboard.press('ArrowUp');
    assert.match(await focused(page), /^00:00:16\.000/);
    await page.keyboard.press('Enter');
    assert.equal(await page.locator('#time').innerText(), '00:00:16.000');
    await page.keyboard.press('Home');
    assert.match(await focused(page), /^00:00:00\.500/);

    // The search: Enter goes to the first hit, Enter again jumps.
    await page.keyboard.press('/');
    assert.equal(await focused(page), 'search');
    await page.keyboard.type('half/?c');
    assert.equal(await page.locator('#search').inputValue(), 'half/?c');
    await page.keyboard.press('Control+A');
    await page.keyboard.type('half');
    await page.keyboard.press('Enter');
    assert.match(await focused(page), /^00:00:07\.500/);
    await page.keyboard.press('Enter');
    assert.equal(await page.locator('#time').innerText(), '00:00:07.500');

    // The dialog takes the focus, and gives it back.
    await page.keyboard.press('?');
    assert.equal(await page.locator('#help-dialog').isVisible(), true);
    assert.equal(await page.evaluate(() => document.activeElement.closest('dialog') !== null), true);
    await page.keyboard.press('Escape');
    assert.equal(await page.locator('#help-dialog').isVisible(), false);
    assert.match(await focused(page), /^00:00:07\.500/);
});

test('shortcuts play, jump and switch captions, and can be switched off', async () => {
    const page = await openPage(sample);
    const time = () => page.locator('#time').innerText();
    const press = async (key) => {
        await page.keyboard.press(key);
        return time();
    };
    assert.equal(await press('l'), '00:00:10.000');
    assert.equal(await press('Shift+L'), '00:00:20.000');
    assert.equal(await press('j'), '00:00:10.000');
    assert.equal(await press('.'), '00:00:13.000');
    assert.equal(await press(','), '00:00:07.500');
    assert.equal((await shownCaptions(page)).length, 1);
    await page.keyboard.press('c');
    assert.equal((await shownCaptions(page)).length, 0);
    await page.keyboard.press('c');
    assert.equal((await shownCaptions(page)).length, 1);
    const selects = [page.locator('#first-language'), page.locator('#second-language')];
    const chosen = () => Promise.all(selects.map((select) => select.inputValue()));
    await selects[1].selectOption('de');
    await page.locator('#play').focus();
    await page.keyboard.press('c');
    assert.deepEqual(await shownCaptions(page), []);
    await page.keyboard.press('c');
    assert.deepEqual(await chosen(), ['en', 'de']);
    for (const select of selects) await select.selectOption('');
    await page.locator('#play').focus();
    await page.keyboard.press('c');
    assert.deepEqual(await chosen(), ['en', 'de']);
    await selects[1].selectOption('');
    await page.locator('#play').focus();
    assert.equal(await press('Control+l'), '00:00:07.500');
    for (const key of ['k', ' ']) {
        await page.keyboard.press(key);
        await until(page, () => document.getElementById('play').classList.contains('is-playing'));
        await page.keyboard.press(key);
        await until(page, () => !document.getElementById('play').classList.contains('is-playing'));
    }

    await page.keyboard.press('?');
    await page.getByRole('checkbox', { name: 'Use the shortcuts' }).uncheck();
    await page.getByRole('button', { name: 'Close' }).click();
    const before = await time();
    for (const key of ['l', 'j', '.', 'k', 'c', '/', '?']) assert.equal(await press(key), before, key);
    assert.equal(await page.locator('#help-dialog').isVisible(), false);
    assert.equal((await shownCaptions(page)).length, 1);
    await page.reload();
    assert.equal(await press('l'), '00:00:00.000');
});

test('shortcuts do no harm without a packet, nor with another one', async () => {
    const page = await openPage(undefined);
    for (const key of [',', '.', 'c', 'j', 'l', '/', 'k', 'k']) await page.keyboard.press(key);
    assert.deepEqual(page.errors, []);
    await pickFiles(page, packetFile(sample));
    await until(page, () => document.getElementById('title').textContent === 'The Paper Boat');
    await page.keyboard.press('c');
    await pickFiles(page, packetFile(golden));
    await until(page, () => document.getElementById('title').textContent === 'Tea & "Time"');
    for (const presses of [1, 2, 3]) {
        await page.keyboard.press('c');
        assert.notEqual(await page.locator('#first-language').evaluate((select) => select.selectedIndex), -1, presses);
    }
});

// The ratio of the brightnesses of two colours, as WCAG defines it.
function contrast(page, ...colours) {
    return page.evaluate((both) => {
        const [lighter, darker] = both.map((colour) => {
            const context = new OffscreenCanvas(1, 1).getContext('2d');
            context.fillStyle = colour;
            context.fillRect(0, 0, 1, 1);
            const [red, green, blue] = [...context.getImageData(0, 0, 1, 1).data].map((value) =>
                value / 255 <= 0.04045 ? value / 255 / 12.92 : ((value / 255 + 0.055) / 1.055) ** 2.4);
            return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
        }).sort((a, b) => b - a);
        return (lighter + 0.05) / (darker + 0.05);
    }, colours);
}

test('the hint of the search can be read, as a whole', async () => {
    for (const colorScheme of ['light', 'dark']) {
        const page = await openPage(sample, { colorScheme });
        const colours = await page.locator('#search').evaluate((input) =>
            [getComputedStyle(input, '::placeholder').color, getComputedStyle(input).backgroundColor]);
        assert.ok(await contrast(page, ...colours) >= 4.5, colours.join());
    }
    for (const width of [320, 640, 1280]) {
        const page = await openPage(sample, { viewport: { width, height: 800 } });
        const [space, needed] = await page.locator('#search').evaluate((input) => {
            const { font, paddingLeft, paddingRight } = getComputedStyle(input);
            const context = new OffscreenCanvas(1, 1).getContext('2d');
            context.font = font;
            return [input.clientWidth - parseFloat(paddingLeft) - parseFloat(paddingRight),
                context.measureText(input.placeholder).width];
        });
        assert.ok(needed <= space, `${needed} of ${space} at ${width}`);
    }
});

test('the position is clear on every lane, in forced colours too', async () => {
    for (const colorScheme of ['light', 'dark']) {
        const page = await openPage(sample, { forcedColors: 'active', colorScheme });
        const [line, edge, items] = await page.locator('.lane-track').first().evaluate((track) => {
            const { borderLeftColor, outlineColor, outlineStyle } = getComputedStyle(track, '::after');
            return [borderLeftColor, outlineStyle === 'none' ? borderLeftColor : outlineColor,
                getComputedStyle(track.querySelector('path')).fill];
        });
        assert.ok(await contrast(page, line, edge) >= 3, `${line} ${edge}`);
        assert.ok(await contrast(page, edge, items) >= 3, `${edge} ${items}`);
    }
});

test('a message keeps away from the edges of the window', async () => {
    for (const width of [320, 1280]) {
        const page = await openPage('<x', { viewport: { width, height: 800 } });
        const box = await page.locator('#error').boundingBox();
        assert.ok(box.x >= 12 && box.x + box.width <= width - 12, `${box.x} + ${box.width}`);
    }
});

test('many languages and long texts leave room for the lists', async () => {
    const names = Array.from({ length: 200 }, (_, index) => `x${index}`);
    const texts = names.map((name) => `<rdf:li xml:lang="${name}">text</rdf:li>`).join('');
    const packet = golden.replace('Tea &amp;', `${'long '.repeat(20000)}`)
        .replaceAll(/<xmpDM:name><rdf:Alt>.*?<\/rdf:Alt>/gs, `<xmpDM:name><rdf:Alt>${texts}</rdf:Alt>`);
    for (const width of [320, 1280]) {
        const page = await openPage(packet, { viewport: { width, height: 800 } });
        assert.equal(await page.locator('.lane').count(), 202);
        assert.ok((await page.locator('#panels').boundingBox()).y < 1400);
        assert.ok(await page.evaluate(() => document.documentElement.scrollHeight) < 2200);
        await tabTo(page, 'lanes');
        await page.keyboard.press('End');
        await until(page, () => document.getElementById('lanes').scrollTop > 1000);
        const [bar, lane] = await page.evaluate(() => ['#seek-bar', '.lane-track'].map((selector) =>
            document.querySelector(selector).getBoundingClientRect().right));
        assert.ok(Math.abs(bar - lane) < 1, `${bar} ${lane}`);
    }
});
