import { element, textElement } from './dom.js';
import { label } from './labels.js';
import { formatTime } from './times.js';

// The date holds UTC; its offset says nothing.
function dateText(date) {
    const [, day, time] = /^(\d{4,}-\d\d-\d\d)T(\d\d:\d\d:\d\d)/.exec(date) ?? [];
    return day ? label('factDateUtc', { date: day, time }) : date;
}

function hex(colour) {
    return `#${colour.map((component) => component.toString(16).padStart(2, '0')).join('')}`;
}

function rateText({ items, rate }) {
    return label('factRate', { count: items.length, rate });
}

function captionFacts(captions) {
    if (captions.items.length === 0) return [];
    const { fontFamily: family, fontSize: size, opacity } = captions;
    const colours = { colour: hex(captions.colour), background: hex(captions.background), opacity: String(opacity) };
    return [
        ['factCaptions', rateText(captions)],
        ['factFont', label('factFontValue', { family, size })],
        ['factColours', label('factColoursValue', colours)],
    ];
}

function facts({ header, languages, captions, contents, screenTexts }) {
    const yesOrNo = (value) => label(value ? 'yes' : 'no');
    return [
        ['factTitle', header.title],
        ['factDescription', header.description],
        ['factCreator', header.creator],
        ['factKeywords', header.keywords.join(', ')],
        ['factLength', formatTime(header.length)],
        ['factSize', label('factSizeValue', { width: String(header.width), height: String(header.height) })],
        ['factLanguages', languages.map((language) => label('factLanguage', language)).join(', ')],
        ['factFiles', header.files.join(', ')],
        ['factExplicit', yesOrNo(header.isExplicit)],
        ['factSearchBar', yesOrNo(header.hasSearchBar)],
        ['factThumbnail', header.thumbnail],
        ['factFirstFrame', header.firstFrame],
        ...captionFacts(captions),
        ...contents.items.length > 0 ? [['factContents', rateText(contents)]] : [],
        ['factContentsImage', contents.image ?? ''],
        ...screenTexts.items.length > 0 ? [['factScreenTexts', rateText(screenTexts)]] : [],
        ['factDate', dateText(header.date)],
        ['factSource', header.source],
        ['factVersion', header.version],
    ].filter(([, value]) => value !== '');
}

/** Lists the facts of the packet; those that it leaves empty are left out. */
export function showDetails(list, packet) {
    list.replaceChildren(...facts(packet).flatMap(([key, value]) =>
        [element('dt', {}, label(key)), textElement('dd', value)]));
}
