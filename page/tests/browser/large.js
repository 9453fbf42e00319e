// A packet of 10,000 captions in four languages.
import { publishCues } from './support.js';

const words = {
    en: ['river', 'paper', 'boat', 'bridge', 'rain', 'captain', 'harbour', 'lantern'],
    de: ['Fluss', 'Papier', 'Boot', 'Br\u00fccke', 'Regen', 'Kapit\u00e4n', 'Hafen', 'Laterne'],
    ja: ['\u5ddd', '\u7d19', '\u821f', '\u6a4b', '\u96e8', '\u8239\u9577', '\u6e2f', '\u706f'],
    ar: ['\u0646\u0647\u0631', '\u0648\u0631\u0642', '\u0642\u0627\u0631\u0628', '\u062c\u0633\u0631', '\u0645\u0637\u0631', '\u0642\u0628\u0637\u0627\u0646', '\u0645\u064a\u0646\u0627\u0621', '\u0641\u0627\u0646\u0648\u0633'],
};

export const captionCount = 10000;

export function publishLarge() {
    const cues = (language, length) => Array.from({ length }, (_, index) => {
        const text = Array.from({ length: 6 + index % 9 }, (_, word) =>
            words[language][(index * 7 + word * (1 + index % 5)) % 8]).join(language === 'ja' ? '' : ' ');
        return [index * 2000, index * 2000 + 1900, `${text} ${index}`];
    });
    const captions = Object.fromEntries(Object.keys(words).map((language) => [language, cues(language, captionCount)]));
    return publishCues({ captions, contents: cues('en', 500), screenTexts: cues('en', 500) }, '--title', 'A long video');
}
