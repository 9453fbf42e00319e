import { hasText, isBlank } from './packet.js';

function firstTextOf(caption) {
    return [...caption.texts].find(([, text]) => !isBlank(text)) ?? ['', ''];
}

function captionPlace(caption) {
    const [language, text] = firstTextOf(caption);
    return { time: caption.start, language, text };
}

function textPlace(item) {
    return { time: item.start, language: '', text: item.text };
}

// Where two captions show in the language at the same time: each caption that starts before an earlier one
// ends.
function overlapsIn(captions, language) {
    const places = [];
    let longest;
    for (const caption of captions) {
        if (!hasText(caption, language) || caption.end <= caption.start) continue;
        const textOf = ({ texts }) => texts.get(language);
        if (longest && caption.start < longest.end)
            places.push({ time: caption.start, language, text: textOf(caption), earlier: textOf(longest) });
        if (!longest || caption.end > longest.end) longest = caption;
    }
    return places;
}

// The languages whose captions were timed together: more than half of one's captions are in the other, too.
// A language without any text belongs to all.
function timingGroups(captions, languages) {
    const count = (...both) => captions.filter((caption) => both.every(({ id }) => hasText(caption, id))).length;
    let groups = [];
    for (const language of languages) {
        const belongs = (other) => {
            const fewer = Math.min(count(language), count(other));
            return fewer === 0 || 2 * count(language, other) > fewer;
        };
        const together = groups.filter((group) => group.some(belongs));
        groups = [...groups.filter((group) => !together.includes(group)), [...together.flat(), language]];
    }
    return groups;
}

function lackingIn(captions, language, group) {
    return captions
        .filter((caption) => !hasText(caption, language.id) && group.some(({ id }) => hasText(caption, id)))
        .map(captionPlace);
}

/**
 * Finds the problems of a packet. `problems` are kinds, each with its label, the label's values, and places;
 * `groups` are the languages that were timed together. A place has a time, except where a value cannot be read:
 * that place has only `fault`, the value with its own place, which may lack a time.
 */
export function findProblems(packet) {
    const { header, languages, faults } = packet;
    const captions = packet.captions.items;
    const entries = packet.contents.items;
    const screenTexts = packet.screenTexts.items;
    const hasNoLength = (item) => item.end <= item.start;
    const isBeyond = (item) => header.length > 0 && Math.max(item.start, item.end) > header.length;
    const isLate = (entry) => header.length > 0 && entry.start > header.length;
    const isEmpty = (item) => isBlank(item.text);
    const hasNoText = (caption) => isBlank(firstTextOf(caption)[1]);
    const positions = new Set(entries.map(({ position }) => position));
    const hasNoEntry = ({ entry }) => entry !== 0 && !positions.has(entry);
    const problem = (key, places, language) => ({ key, places, language });

    const groups = timingGroups(captions, languages);
    const problems = [
        problem('unreadableValue', faults.map((fault) => ({ fault }))),
        ...languages.map((language) => problem('overlapIn', overlapsIn(captions, language.id), language.name)),
        problem('captionWithoutLength', captions.filter(hasNoLength).map(captionPlace)),
        problem('captionWithoutText', captions.filter(hasNoText).map(captionPlace)),
        problem('captionBeyondLength', captions.filter(isBeyond).map(captionPlace)),
        ...groups.flatMap((group) => group.map((language) =>
            problem('captionLacksLanguage', lackingIn(captions, language, group), language.name))),
        problem('entryWithoutTitle', entries.filter(isEmpty).map(textPlace)),
        problem('entryBeyondLength', entries.filter(isLate).map(textPlace)),
        problem('screenTextWithoutLength', screenTexts.filter(hasNoLength).map(textPlace)),
        problem('screenTextWithoutText', screenTexts.filter(isEmpty).map(textPlace)),
        problem('screenTextBeyondLength', screenTexts.filter(isBeyond).map(textPlace)),
        problem('screenTextOfUnknownEntry', screenTexts.filter(hasNoEntry).map(textPlace)),
    ].filter(({ places }) => places.length > 0);
    return { problems, groups: groups.map((group) => group.map(({ name }) => name)) };
}

/**
 * Reads the report of the program that wrote the packet, in the form of findProblems(). Here, `file` names a file
 * or its line, and a place without a `time` is one in a file only.
 */
export function readReport({ problems, timing_groups: groups }) {
    const place = ({ start_ms: time, language = '', text, file, line, detail }) =>
        ({ time, language, text, file: line === undefined ? file : `${file}:${line}`, detail });
    return { problems: problems.map(({ kind, places }) => ({ key: kind, places: places.map(place) })), groups };
}
