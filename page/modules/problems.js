const isBlank = (text) => text.trim() === '';

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
        const text = caption.texts.get(language) ?? '';
        if (isBlank(text) || caption.end <= caption.start) continue;
        if (longest && caption.start < longest.end)
            places.push({ time: caption.start, language, text, earlier: longest.texts.get(language) });
        if (!longest || caption.end > longest.end) longest = caption;
    }
    return places;
}

function lackingIn(captions, language) {
    return captions
        .filter((caption) => isBlank(caption.texts.get(language) ?? '') && !isBlank(firstTextOf(caption)[1]))
        .map(captionPlace);
}

/**
 * Lists the problems of a packet: the label of each kind, its values, and its places. A place has a time,
 * except if a value there cannot be read (then `fault`).
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
    const hasNoEntry = (item) => item.entry !== 0 && !(item.entry > 0 && item.entry < entries.length);
    const problem = (key, places, language) => ({ key, places, language });

    return [
        problem('unreadableValue', faults.map((fault) => ({ fault }))),
        ...languages.map((language) => problem('overlap', overlapsIn(captions, language.id), language.name)),
        problem('captionWithoutLength', captions.filter(hasNoLength).map(captionPlace)),
        problem('captionWithoutText', captions.filter(hasNoText).map(captionPlace)),
        problem('captionBeyondLength', captions.filter(isBeyond).map(captionPlace)),
        ...languages.map((language) =>
            problem('captionLacksLanguage', lackingIn(captions, language.id), language.name)),
        problem('entryWithoutTitle', entries.filter(isEmpty).map(textPlace)),
        problem('entryBeyondLength', entries.filter(isLate).map(textPlace)),
        problem('screenTextWithoutLength', screenTexts.filter(hasNoLength).map(textPlace)),
        problem('screenTextWithoutText', screenTexts.filter(isEmpty).map(textPlace)),
        problem('screenTextBeyondLength', screenTexts.filter(isBeyond).map(textPlace)),
        problem('screenTextOfUnknownEntry', screenTexts.filter(hasNoEntry).map(textPlace)),
    ].filter(({ places }) => places.length > 0);
}
