import assert from 'node:assert/strict';
import test from 'node:test';
import {
    golden, jumpToHit, makeImage, openPage, packetFile, pickFiles, publishCues, publishSample, shownCaptions, until,
} from './support.js';

const sample = publishSample();

function textOf(page, selector) {
    return page.locator(selector).innerText();
}

async function choose(page, selector, value) {
    await page.locator(selector).selectOption(value);
}

function rows(page, panel) {
    return page.locator(`#${panel} .row`);
}

// Clicks at a time of the sample, which lasts 32 seconds; returns the time to which the click jumped.
async function clickLane(page, lane, time) {
    const track = page.locator('.lane-track').nth(lane);
    const { width } = await track.boundingBox();
    await track.click({ position: { x: width * time / 32000, y: 10 } });
    return textOf(page, '#time');
}

async function openTab(page, name) {
    await page.getByRole('tab', { name }).click();
}

test('the preview that the tool wrote shows its packet and report, without any other file', async () => {
    const page = await openPage(sample, { written: true });
    assert.equal(await textOf(page, '#title'), 'The Paper Boat');
    assert.equal(await page.title(), 'The Paper Boat');
    assert.equal(await textOf(page, '#creator'), 'by Ann & Bo');
    assert.equal(await textOf(page, '#duration'), '00:00:32.000');
    assert.equal(await textOf(page, '#problem-count'), '12');
    assert.equal(await page.locator('#welcome').isVisible(), false);
    // The content file that the packet names is all that it looks for.
    assert.deepEqual(page.requests.map((url) => url.slice(page.folder.length)), ['/preview.html', '/paper-boat.webm']);
    assert.deepEqual(page.errors, []);
});

test('the page without a packet takes one by its file picker', async () => {
    const page = await openPage(undefined);
    assert.equal(await page.locator('#player').isVisible(), false);
    const chooser = page.waitForEvent('filechooser');
    await page.locator('#welcome-open').click();
    await (await chooser).setFiles([packetFile(sample)]);
    await until(page, () => document.getElementById('title').textContent === 'The Paper Boat');
    assert.equal(await page.locator('#welcome').isVisible(), false);
    assert.equal(await page.locator('#status').textContent(), 'Opened the packet test.xmp.');
    assert.deepEqual(page.requests.length, 2);
});

test('the page takes files that are dropped on it', async () => {
    const page = await openPage(undefined);
    const transfer = await page.evaluateHandle((text) => {
        const made = new DataTransfer();
        made.items.add(new File([text], 'dropped.xmp'));
        return made;
    }, sample);
    await page.dispatchEvent('body', 'dragover', { dataTransfer: transfer });
    assert.equal(await page.locator('#drop-note').isVisible(), true);
    await page.dispatchEvent('body', 'drop', { dataTransfer: transfer });
    await until(page, () => document.getElementById('title').textContent === 'The Paper Boat');
    assert.equal(await page.locator('#drop-note').isVisible(), false);
});

test('another packet replaces the first one', async () => {
    const page = await openPage(sample);
    await page.locator('#search').fill('boat');
    await pickFiles(page, packetFile(golden));
    await until(page, () => document.getElementById('title').textContent === 'Tea & "Time"');
    assert.equal(await page.locator('#search').inputValue(), '');
    assert.equal(await page.locator('.lane').count(), 4);
    assert.deepEqual(await page.locator('#first-language option').allTextContents(), ['French', 'German', 'None']);
});

test('without a video, a stage of the packet\'s size has a clock', async () => {
    const page = await openPage(golden);
    const { width, height } = await page.locator('#stage').boundingBox();
    assert.ok(Math.abs(width / height - 640 / 480) < 0.01);
    assert.equal(await textOf(page, '#stage-note'), '640 \u00d7 480, no video');
    await page.getByRole('button', { name: 'Play' }).click();
    await until(page, () => document.getElementById('time').textContent > '00:00:00.200');
    await page.getByRole('button', { name: 'Pause' }).click();
    const paused = await textOf(page, '#time');
    await page.waitForTimeout(200);
    assert.equal(await textOf(page, '#time'), paused);
});

test('the clock keeps the speed that is chosen', async () => {
    const page = await openPage(golden);
    const positions = await page.evaluate(async () => {
        const result = [];
        const times = [0, 1000, 3000];
        performance.now = () => times[result.length];
        const read = () => result.push(document.getElementById('time').textContent);
        return new Promise((resolve) => {
            document.getElementById('play').click();
            read();
            document.getElementById('speed').value = '2';
            document.getElementById('speed').dispatchEvent(new Event('change'));
            requestAnimationFrame(() => requestAnimationFrame(() => {
                read();
                requestAnimationFrame(() => requestAnimationFrame(() => { read(); resolve(result); }));
            }));
        });
    });
    assert.equal(positions[0], '00:00:00.000');
    assert.ok(positions[2] >= '00:00:04.000', positions[2]);
});

test('the buttons jump from caption to caption', async () => {
    const page = await openPage(sample);
    await page.getByRole('button', { name: 'Next caption' }).click();
    assert.equal(await textOf(page, '#time'), '00:00:00.500');
    await page.getByRole('button', { name: 'Next caption' }).click();
    assert.equal(await textOf(page, '#time'), '00:00:03.200');
    await page.getByRole('button', { name: 'Previous caption' }).click();
    assert.equal(await textOf(page, '#time'), '00:00:00.500');
});

test('captions have the font, size, colours, opacity and place of the packet', async () => {
    const page = await openPage(golden);
    await page.getByRole('button', { name: 'Next caption' }).click();
    await choose(page, '#first-language', 'de');
    const style = await page.locator('.caption').evaluate((caption) => {
        const { fontFamily, fontSize, color, backgroundColor } = getComputedStyle(caption);
        const stage = document.getElementById('stage').getBoundingClientRect();
        const box = caption.getBoundingClientRect();
        return {
            fontFamily, color, backgroundColor,
            ratio: parseFloat(fontSize) / stage.width,
            isTop: box.top - stage.top < stage.height * 0.1,
            isRight: stage.right - box.right < stage.width * 0.1 && box.left - stage.left > stage.width * 0.5,
        };
    });
    assert.ok(Math.abs(style.ratio - 24 / 640) < 0.0005);
    delete style.ratio;
    assert.deepEqual(style, {
        fontFamily: 'Courier, sans-serif', color: 'rgb(255, 127, 254)', backgroundColor: 'rgba(0, 63, 0, 0.25)',
        isTop: true, isRight: true,
    });
});

test('each alignment puts the caption at its place', async () => {
    const places = [['top', 'left'], ['center', 'center'], ['bottom', 'right'], ['bottom', 'center']];
    for (const [vertical, horizontal] of places) {
        const page = await openPage(golden.replaceAll('zelDM:valign="top"', `zelDM:valign="${vertical}"`)
            .replaceAll('zelDM:halign="right"', `zelDM:halign="${horizontal}"`));
        await page.getByRole('button', { name: 'Next caption' }).click();
        await choose(page, '#first-language', 'de');
        const place = await page.locator('.caption').evaluate((caption) => {
            const stage = document.getElementById('captions').getBoundingClientRect();
            const box = caption.getBoundingClientRect();
            const side = (before, after, names) => Math.abs(before - after) < 4 ? names[1] : before < after ? names[0] : names[2];
            return [
                side(box.top - stage.top, stage.bottom - box.bottom, ['top', 'center', 'bottom']),
                side(box.left - stage.left, stage.right - box.right, ['left', 'center', 'right']),
            ];
        });
        assert.deepEqual(place, [vertical, horizontal]);
    }
});

test('captions of the same height never cover each other', async () => {
    const cues = [[0, 1000, 'left '.repeat(20)], [0, 1000, 'centre '.repeat(20)], [0, 1000, 'right '.repeat(20)]];
    const sides = ['left', 'center', 'right'];
    const page = await openPage(publishCues({ captions: { en: cues } })
        .replace(/zelDM:halign="\w*"/g, () => `zelDM:halign="${sides.shift()}"`));
    const boxes = await page.locator('.caption').evaluateAll((captions) =>
        captions.map((caption) => caption.getBoundingClientRect()).sort((a, b) => a.top - b.top));
    assert.equal(boxes.length, 3);
    assert.ok(boxes[0].bottom <= boxes[1].top && boxes[1].bottom <= boxes[2].top);
    assert.deepEqual(await page.locator('.caption').evaluateAll((captions) =>
        captions.map((caption) => getComputedStyle(caption).textAlign).sort()), ['center', 'left', 'right']);
});

test('captions show in one language, in two, or not at all', async () => {
    const page = await openPage(sample);
    await page.getByRole('button', { name: 'Next caption' }).click();
    assert.deepEqual(await shownCaptions(page), [['en', 'A paper boat & a rainy day']]);
    await choose(page, '#second-language', 'ja');
    assert.deepEqual(await shownCaptions(page),
        [['en', 'A paper boat & a rainy day'], ['ja', '\u7d19\u306e\u821f&\u96e8\u306e\u65e5']]);
    await choose(page, '#second-language', 'en');
    assert.equal((await shownCaptions(page)).length, 1);
    await choose(page, '#first-language', '');
    await choose(page, '#second-language', '');
    assert.deepEqual(await shownCaptions(page), []);
});

test('texts run in the direction of their script', async () => {
    const page = await openPage(sample);
    await page.getByRole('button', { name: 'Next caption' }).click();
    await choose(page, '#first-language', 'ar');
    await choose(page, '#transcript-language', 'ar');
    const directions = () => page.evaluate(() => ['.caption', '#transcript-rows .row-text', '#title']
        .map((selector) => getComputedStyle(document.querySelector(selector)).direction));
    assert.deepEqual(await directions(), ['rtl', 'rtl', 'ltr']);
    await choose(page, '#first-language', 'ja');
    assert.deepEqual(await directions(), ['ltr', 'rtl', 'ltr']);
    assert.equal(await page.locator('#transcript-rows .row-text').first().getAttribute('lang'), 'ar');
});

test('a text of a right-to-left language runs right to left, whatever its first letter', async () => {
    const page = await openPage(publishCues({ captions: { ar: [[0, 1000, 'DVD: \u0634\u0627\u0647\u062f!']] } }));
    const directions = await page.evaluate(() => ['.caption', '#transcript-rows .row-text'].map((selector) => {
        const text = document.querySelector(selector);
        const range = document.createRange();
        range.setStart(text.firstChild, 0);
        range.setEnd(text.firstChild, 1);
        const letter = range.getBoundingClientRect();
        range.selectNodeContents(text);
        return [text.dir, letter.left > range.getBoundingClientRect().left + 5];
    }));
    assert.deepEqual(directions, [['rtl', true], ['rtl', true]]);
    const unknown = await openPage(golden.replaceAll('xml:lang="de"', 'xml:lang="d_e"'));
    await choose(unknown, '#transcript-language', 'd_e');
    assert.equal(await unknown.locator('#transcript-rows .row-text').first().getAttribute('dir'), 'auto');
});

test('line feeds of a caption are lines, and RTF is not shown', async () => {
    const rtf = golden.replace('{\\rtf1 }', "{\\rtf1\\ansi {\\fonttbl{\\f0 Arial;}}\\b \\'93Th\\u233?\\'94\\par chaud}");
    const page = await openPage(rtf);
    await page.getByRole('button', { name: 'Next caption' }).click();
    await choose(page, '#first-language', 'fr');
    assert.deepEqual(await shownCaptions(page), [['fr', '\u201cTh\u00e9\u201d\nchaud']]);
    const { height } = await page.locator('.caption').boundingBox();
    const lineHeight = await page.locator('.caption').evaluate((caption) => parseFloat(getComputedStyle(caption).lineHeight));
    assert.ok(height > lineHeight * 2);
});

test('each caption shows from its start until just before its end', async () => {
    const captions = {
        en: [[500, 1250, 'one'], [1250, 2001, 'two'], [3000, 5000, 'long'], [3500, 3501, 'short'], [9000, 9999, 'last']],
        de: [[500, 1250, 'eins'], [1800, 3100, 'zwei'], [9000, 9999, 'letztes']],
    };
    const probes = new Set(Object.values(captions).flat()
        .flatMap(([start, end]) => [start - 1, start, end - 1, end]));
    const packet = publishCues({
        captions, screenTexts: [...probes].map((time) => [time, time + 1, `probe${String(time).padStart(6, '0')}`]),
    }, '--length', '10000');
    const page = await openPage(packet);
    await choose(page, '#first-language', 'en');
    await choose(page, '#second-language', 'de');
    for (const time of probes) {
        await jumpToHit(page, `probe${String(time).padStart(6, '0')}`);
        const expected = Object.entries(captions).flatMap(([language, cues]) => cues
            .filter(([start, end]) => start <= time && time < end)
            .map(([, , text]) => [language, text]));
        assert.deepEqual(await shownCaptions(page), expected, `at ${time}`);
    }
});

test('the first language is the one that the user prefers most', async () => {
    const page = await openPage(sample, { locale: 'de-AT' });
    assert.equal(await page.locator('#first-language').inputValue(), 'de');
    const context = page.context();
    await context.addInitScript(() => Object.defineProperty(navigator, 'languages', { value: ['ja', 'fr', 'ar'] }));
    await page.reload();
    assert.equal(await page.locator('#first-language').inputValue(), 'ja');
});

test('the timeline has a lane for each language and set, and a click jumps to the item', async () => {
    const page = await openPage(sample);
    assert.deepEqual(await page.locator('.lane-name').allTextContents(),
        ['Arabic', 'German', 'English', 'Japanese', 'Contents', 'Screen text']);
    assert.equal(await clickLane(page, 2, 9000), '00:00:07.500');
    assert.equal(await clickLane(page, 4, 20000), '00:00:13.000');
    assert.equal(await clickLane(page, 5, 30000), '00:00:28.000');
    assert.match(await clickLane(page, 0, 21000), /^00:00:2[01]\./);
    const track = page.locator('.lane-track').nth(4);
    await track.hover({ position: { x: 5, y: 10 } });
    assert.equal(await track.getAttribute('title'), '00:00:00.000 Rain');
});

test('the timeline reaches to the last item and marks the end of a shorter video', async () => {
    const page = await openPage(publishCues({ captions: { en: [[0, 4000, 'a']] } }, '--length', '2000'));
    assert.equal(await textOf(page, '#duration'), '00:00:04.000');
    assert.equal(await page.locator('#lanes').evaluate((lanes) =>
        lanes.classList.contains('has-end') && lanes.style.getPropertyValue('--video-end')), '0.5');
});

test('the contents jump, mark the entry that shows, and give the image', async () => {
    const page = await openPage(golden);
    await openTab(page, 'Contents');
    assert.deepEqual(await page.locator('#contents-rows .row-text').allTextContents(), ['Boil', 'Pour & drink']);
    assert.deepEqual(await page.locator('#contents-rows .row-note').allTextContents(),
        ['thumbs & more.png, image 0, offset 0', 'thumbs & more.png, image 1, offset 2048']);
    const large = await openPage(golden.replace('"thumbs &amp; more.png" zelDM:imageindex="0" zelDM:imageoffset="0"',
        '"" zelDM:imageindex="0" zelDM:imageoffset="18446744073709551615"'));
    await openTab(large, 'Contents');
    assert.equal(await large.locator('#contents-rows .row-note').first().textContent(),
        '<toc>.png, image 0, offset 18446744073709551615');
    assert.equal(await rows(page, 'panel-contents').first().getAttribute('aria-current'), 'true');
    await rows(page, 'panel-contents').nth(1).click();
    assert.equal(await textOf(page, '#time'), '00:00:05.000');
    assert.equal(await rows(page, 'panel-contents').first().getAttribute('aria-current'), null);
    assert.equal(await rows(page, 'panel-contents').nth(1).getAttribute('aria-current'), 'true');
});

test('screen texts name their entry, and jump', async () => {
    const page = await openPage(golden);
    await openTab(page, 'Screen text');
    assert.deepEqual(await page.locator('#screen-text-rows .row-text').allTextContents(), ['Click Save', 'Stop <now>']);
    assert.deepEqual(await rows(page, 'panel-screen-texts').nth(1).locator('.row-note').allTextContents(),
        ['in \u201cPour & drink\u201d', 'shots.png, image 3, offset 4096']);
    await rows(page, 'panel-screen-texts').nth(1).click();
    assert.equal(await textOf(page, '#time'), '00:02:00.000');
    const other = await openPage(golden.replace('xmpDM:startTime="0"', 'xmpDM:startTime="?"'));
    await openTab(other, 'Screen text');
    assert.equal(await other.locator('#screen-text-rows .row-note').nth(1).textContent(), 'in \u201cPour & drink\u201d');
});

test('thumbnails are files beside the page, or those that were opened', async () => {
    const maker = await openPage(undefined);
    const red = await makeImage(maker, 'thumbs & more.png', '#f00');
    const blue = await makeImage(maker, 'shots.png', '#00f');
    const page = await openPage(golden, { files: { [red.name]: red.buffer } });
    await openTab(page, 'Contents');
    const areLoaded = (panel) => until(page, (id) => {
        const images = [...document.querySelectorAll(`#${id} img`)];
        return images.length === 2 && images.every((image) => image.complete && image.naturalWidth === 32);
    }, panel);
    await areLoaded('panel-contents');
    await openTab(page, 'Screen text');
    await until(page, () => document.querySelectorAll('#panel-screen-texts img').length === 0);
    await pickFiles(page, blue);
    await areLoaded('panel-screen-texts');
    assert.equal(await page.locator('#status').textContent(), 'Opened an image.');
});

test('the transcript has its own language, follows, and jumps', async () => {
    const page = await openPage(sample, { viewport: { width: 1280, height: 420 } });
    await choose(page, '#transcript-language', 'de');
    assert.equal(await rows(page, 'panel-transcript').first().locator('.row-text').innerText(), 'Ein Papierboot & ein Regentag');
    await page.getByRole('button', { name: 'Next caption' }).click();
    assert.deepEqual(await shownCaptions(page), [['en', 'A paper boat & a rainy day']]);
    assert.equal(await rows(page, 'panel-transcript').first().getAttribute('aria-current'), 'true');
    const isVisible = (text) => page.evaluate((wanted) => {
        const row = [...document.querySelectorAll('#transcript-rows .row')].find((other) => other.textContent.includes(wanted));
        const view = document.getElementById('transcript-rows').getBoundingClientRect();
        const box = row?.getBoundingClientRect();
        return box !== undefined && box.top >= view.top - 1 && box.bottom <= view.bottom + 1;
    }, text);
    assert.equal(await isVisible('schwimmt'), false);
    assert.equal(await clickLane(page, 1, 28000), '00:00:26.000');
    assert.equal(await isVisible('schwimmt'), true);
    await page.locator('#follow').uncheck();
    await page.locator('#transcript-rows').evaluate((list) => { list.scrollTop = 0; });
    await page.locator('#seek-bar').press('Home');
    await clickLane(page, 1, 28000);
    assert.equal(await isVisible('schwimmt'), false);
    await page.locator('#transcript-rows').getByText('Fertig?').click();
    assert.equal(await textOf(page, '#time'), '00:00:06.400');
});

const many = publishCues({
    captions: { en: Array.from({ length: 100 }, (_, index) => [index * 3000, index * 3000 + 2500, `line ${index}.`]) },
    contents: [[0, 150000, 'First half'], [150000, 300000, 'Second half']],
});

function showsRow(page, text) {
    return until(page, (wanted) => {
        const row = [...document.querySelectorAll('#transcript-rows .row')].find((other) => other.textContent.endsWith(wanted));
        const view = document.getElementById('transcript-rows').getBoundingClientRect();
        const box = row?.getBoundingClientRect();
        return box !== undefined && view.height > 0 && box.top >= view.top - 1 && box.bottom <= view.bottom + 1;
    }, text);
}

test('the transcript is at the time when its tab is shown, and when it is told to follow', async () => {
    const page = await openPage(many);
    await openTab(page, 'Contents');
    await rows(page, 'panel-contents').nth(1).click();
    await openTab(page, 'Transcript');
    await showsRow(page, 'line 50.');
    await page.locator('#follow').uncheck();
    await page.getByRole('slider').press('Home');
    await showsRow(page, 'line 50.');
    await page.locator('#follow').check();
    await showsRow(page, 'line 0.');
});

test('the transcript follows from gap to gap', async () => {
    const page = await openPage(publishCues({
        captions: { en: Array.from({ length: 60 }, (_, index) => [index * 1000 + 500, index * 1000 + 900, `line ${index}.`]) },
    }, '--length', '60000'));
    await showsRow(page, 'line 0.');
    await page.getByRole('slider').press('End');
    await showsRow(page, 'line 59.');
});

test('the transcript follows after a row was pressed, but not away from a row that the keyboard moved to', async () => {
    const page = await openPage(many);
    await rows(page, 'panel-transcript').nth(2).click();
    // Without the focus: it is still on the row.
    await page.evaluate(() => document.querySelectorAll('.lane-track')[1].click());
    assert.match(await page.evaluate(() => document.activeElement.textContent), /line 2\./);
    const { width } = await page.locator('.lane-track').first().boundingBox();
    await page.locator('.lane-track').first().evaluate((track, x) => track.dispatchEvent(new MouseEvent('click',
        { clientX: track.getBoundingClientRect().left + x })), width * 0.7);
    await showsRow(page, 'line 70.');

    await page.keyboard.press('Home');
    await showsRow(page, 'line 0.');
    await page.keyboard.press('l');
    await page.waitForTimeout(200);
    await showsRow(page, 'line 0.');
    await page.keyboard.press('Enter');
    for (let presses = 0; presses < 9; ++presses) await page.keyboard.press('l');
    await showsRow(page, 'line 30.');
});

test('the search finds all sets and languages, announces the number, marks and jumps', async () => {
    const page = await openPage(sample);
    await page.locator('#search').fill('FOLD');
    await until(page, () => document.getElementById('hit-count').textContent === '3 hits');
    assert.equal(await page.locator('#hit-count').getAttribute('role'), 'status');
    assert.equal(await page.getByRole('tab', { name: 'Search' }).getAttribute('aria-selected'), 'true');
    assert.deepEqual(await page.locator('#result-rows .row-note').allTextContents(),
        ['Caption, English', 'Contents', 'Screen text']);
    assert.deepEqual(await page.locator('#result-rows mark').allTextContents(), ['fold', 'Fold', 'fold']);
    for (const [query, count, language] of [['nothing', 'No hit'], ['weisser', '1 hit', 'de'], ['\u7d19', '2 hits', 'ja'],
        ['\u0648\u0631\u0642', '1 hit', 'ar']]) {
        await page.locator('#search').fill(query);
        await until(page, (text) => document.getElementById('hit-count').textContent === text, count);
        if (language)
            assert.equal(await page.locator('#result-rows .row-text').first().getAttribute('lang'), language);
    }
    await rows(page, 'panel-results').first().click();
    assert.equal(await textOf(page, '#time'), '00:00:00.500');
    await page.locator('#search').fill('');
    await until(page, () => document.getElementById('hit-count').textContent === '');
    assert.equal(await rows(page, 'panel-results').count(), 0);
});

test('Enter in the search goes to the hits from any tab', async () => {
    const page = await openPage(sample);
    await page.locator('#search').fill('paper');
    await openTab(page, 'Transcript');
    await page.locator('#search').press('Enter');
    assert.equal(await page.getByRole('tab', { name: 'Search' }).getAttribute('aria-selected'), 'true');
    assert.equal(await page.evaluate(() => document.activeElement.closest('#result-rows') !== null), true);
    await page.keyboard.press('/');
    await page.keyboard.type('fold');
    assert.equal(await page.locator('#search').inputValue(), 'fold');
});

test('the details give every fact of the packet', async () => {
    const page = await openPage(golden.replace('DATE', '2009-03-05T14:07:09+2:00'));
    await openTab(page, 'Details');
    const facts = await page.locator('#facts').evaluate((list) => Object.fromEntries(
        [...list.querySelectorAll('dt')].map((term) => [term.textContent, term.nextElementSibling.textContent])));
    assert.deepEqual(facts, {
        'Title': 'Tea & "Time"', 'Description': 'one < two \u8336 \ud83c\udf75', 'Creator': 'Ann \'n\' Bo',
        'Keywords': 'a, b & c', 'Length': '00:01:30.500', 'Frame size': '640 \u00d7 480 pixels',
        'Languages': 'French (fr), German (de)', 'Content files': 'intro.mp4, it\'s.xml', 'Explicit content': 'Yes',
        'Search bar of the player': 'No', 'Captions': '2, times in units of 1/25 s',
        'Font of the captions': 'Courier, 24 pixels', 'Colours of the captions': '#ff7ffe on #003f00, opacity 0.25',
        'Entries of the contents': '2, times in units of 1/1,000 s', 'Image file of the contents': '<toc>.png',
        'Screen texts': '2, times in units of 1/50 s', 'Written': '2009-03-05 14:07:09 UTC',
        'Application': 'Recorder - 2.0', 'Version of the format': '1.1.0',
    });
});

test('the problems in the report are listed with their number, files and lines, and their places jump', async () => {
    const page = await openPage(sample);
    assert.equal(await page.locator('#problem-count').innerText(), '12');
    await openTab(page, 'Problems');
    assert.deepEqual(await page.locator('#problems summary').allTextContents(), [
        '2 malformed cues were left out', 'A cue without length was left out',
        'A caption is too short', 'A caption has too many lines',
        '2 captions start while another one shows in their language', '5 captions lack a language',
    ]);
    await page.locator('#problems summary').nth(0).click();
    const malformed = rows(page, 'panel-problems').nth(1);
    assert.match(await malformed.innerText(), /^00:00:12 --> 00:00:13\n.*paper-boat\.en\.srt:25$/);
    assert.equal(await malformed.getAttribute('aria-disabled'), 'true');
    await page.locator('#problems summary').nth(4).click();
    const place = rows(page, 'panel-problems').nth(2);
    assert.match(await place.innerText(),
        /^00:00:16\.000\nNoch ist es kein Hut \u2026\n.*paper-boat\.de\.srt:20\n.*:16\) shows until 00:00:16\.500$/);
    await place.click();
    assert.equal(await textOf(page, '#time'), '00:00:16.000');
});

test('captions that were timed separately are one line in the list of problems', async () => {
    const packet = publishCues({
        captions: { en: [[0, 2000, 'a'], [2000, 4000, 'b']], de: [[100, 1900, 'c'], [2100, 3900, 'd']] },
    });
    const page = await openPage(packet);
    await openTab(page, 'Problems');
    const notes = (opened) => opened.locator('#problems').locator('*').allTextContents();
    const separately = 'Timed separately, so a caption of one need not have the others';
    assert.deepEqual(await notes(page), ['No problems.', `${separately}: de | en`]);
    const bare = await openPage();
    await pickFiles(bare, packetFile(packet));
    await openTab(bare, 'Problems');
    assert.deepEqual(await notes(bare), ['No problems.', `${separately}: English | German`]);
});

test('the page finds the problems of a packet without a report', async () => {
    const page = await openPage();
    await pickFiles(page, packetFile(sample));
    await until(page, () => document.getElementById('problem-count').textContent === '11');
    await openTab(page, 'Problems');
    assert.deepEqual(await page.locator('#problems summary').allTextContents(), [
        'Captions in German overlap once', 'Captions in English overlap once', '5 captions lack Arabic',
        'A caption lacks German', 'A caption lacks English', '2 captions lack Japanese',
    ]);
    await page.locator('#problems summary').nth(1).click();
    const place = rows(page, 'panel-problems').first();
    assert.equal(await place.innerText(), '00:00:16.000\nPress the fold with your nail. / It\'s not a hat yet...');
    await place.click();
    assert.equal(await textOf(page, '#time'), '00:00:16.000');
    assert.equal((await shownCaptions(page)).length, 2);
});

test('a packet without problems, captions or contents says so', async () => {
    const page = await openPage(publishCues({ captions: { en: [[0, 1000, 'a']] } }));
    assert.equal(await page.locator('#problem-count').isVisible(), false);
    await openTab(page, 'Problems');
    assert.equal(await textOf(page, '#problems'), 'No problems.');
    await openTab(page, 'Contents');
    assert.equal(await textOf(page, '#panel-contents'), 'The packet has none.');
});
