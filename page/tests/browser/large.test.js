// Counts what is in the document, which is what makes a long packet fast; ./measure.js prints times.
import assert from 'node:assert/strict';
import test from 'node:test';
import { captionCount, publishLarge } from './large.js';
import { openPage, publishCues, until } from './support.js';

const limit = 700;
const countElements = () => document.querySelectorAll('*').length;
const countRows = (id) => document.querySelectorAll(`#${id} .row`).length;

test('only the rows that are visible are in the document', async () => {
    const page = await openPage(publishLarge());
    assert.ok(await page.evaluate(countElements) < limit);
    const list = page.locator('#transcript-rows');
    const height = await list.evaluate((node) => node.scrollHeight);
    assert.ok(height > captionCount * 30);
    for (const part of [0.1, 0.5, 0.9]) {
        await list.evaluate((node, to) => { node.scrollTop = to; }, height * part);
        await until(page, () => {
            const view = document.getElementById('transcript-rows').getBoundingClientRect();
            const boxes = [...document.querySelectorAll('#transcript-rows .row')].map((row) => row.getBoundingClientRect())
                .filter((box) => box.bottom > view.top && box.top < view.bottom).sort((a, b) => a.top - b.top);
            // Rows fill the view, without gap or overlap.
            return boxes.length > 5 && boxes[0].top <= view.top + 1 && boxes.at(-1).bottom >= view.bottom - 1
                && boxes.every((box, index) => index === 0 || Math.abs(box.top - boxes[index - 1].bottom) < 1);
        });
        assert.ok(await page.evaluate(countRows, 'transcript-rows') < 60);
        assert.ok(await page.evaluate(countElements) < limit);
    }
    // Rows that become visible show their heights, which moves the end.
    await until(page, () => {
        const scroller = document.getElementById('transcript-rows');
        scroller.scrollTop = scroller.scrollHeight;
        return scroller.scrollTop + scroller.clientHeight >= scroller.scrollHeight - 1
            && document.querySelector('[aria-posinset="10000"]') !== null;
    });
    assert.match(await list.locator('.row').last().innerText(), / 9999$/);

    await page.locator('#search').fill('river');
    await until(page, () => document.getElementById('hit-count').textContent !== '');
    assert.match(await page.locator('#hit-count').textContent(), /^\d+,\d\d\d hits$/);
    assert.ok(await page.evaluate(countRows, 'result-rows') < 60);
    assert.ok(await page.evaluate(countElements) < limit);

    await page.locator('#search').press('Enter');
    await page.keyboard.press('End');
    const last = await page.evaluate(() => document.activeElement.parentElement.getAttribute('aria-posinset'));
    assert.equal(Number(last), Number((await page.locator('#hit-count').textContent()).replace(/\D/g, '')));
    assert.ok(await page.evaluate(countRows, 'result-rows') < 60);

    await page.getByRole('tab', { name: 'Contents' }).click();
    assert.ok(await page.evaluate(countRows, 'contents-rows') < 30);
    assert.deepEqual(page.errors, []);
});

test('rows of any height keep their places while the list is scrolled back', async () => {
    const page = await openPage(publishLarge(), { viewport: { width: 400, height: 800 } });
    const list = page.locator('#transcript-rows');
    await list.evaluate((node) => { node.scrollTop = 100000; });
    await until(page, () => document.querySelectorAll('#transcript-rows .row').length > 5);
    // The first visible row moves exactly as far as the list is scrolled.
    const moved = await list.evaluate(async (node) => {
        const settled = () => new Promise((resolve) => requestAnimationFrame(() => requestAnimationFrame(resolve)));
        const result = [];
        await settled();
        for (let step = 0; step < 40; ++step) {
            const top = node.getBoundingClientRect().top;
            const row = [...node.querySelectorAll('.row')].find((other) => other.getBoundingClientRect().bottom > top + 5);
            const before = row.getBoundingClientRect().top;
            node.scrollTop -= 53;
            await settled();
            result.push(Math.round(row.getBoundingClientRect().top - before));
        }
        return result;
    });
    assert.deepEqual([...new Set(moved)], [53]);
});

test('of many captions at one time the stage shows some, and the number of the others', async () => {
    const cues = Array.from({ length: captionCount }, (_, index) => [0, 1000, `line ${index}`]);
    const page = await openPage(publishCues({ captions: { en: cues } }));
    assert.ok(await page.evaluate(countElements) < limit);
    assert.equal(await page.locator('.caption').count(), 21);
    assert.equal(await page.locator('.caption').last().textContent(), 'and 9,980 more');
    assert.deepEqual(page.errors, []);
});
