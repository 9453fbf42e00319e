import { element, textElement } from './dom.js';
import { makeRowButton } from './item-list.js';
import { label } from './labels.js';
import { VirtualList } from './virtual-list.js';

function faultText({ place, property, value }) {
    return label('fault', { place: label(place.key, place), property, value });
}

function contentOf({ fault, earlier, text, language, file, detail }) {
    if (fault) return [element('span', { class: 'row-text' }, faultText(fault))];
    const shown = earlier === undefined ? text || label('noText') : label('overlapping', { first: earlier, second: text });
    const notes = [file, detail].filter(Boolean).map((note) => textElement('span', note, '', { class: 'row-note' }));
    return text === undefined ? notes : [textElement('span', shown, language, { class: 'row-text' }), ...notes];
}

function makePlace(place, player) {
    const time = place.fault ? place.fault.place.time : place.time;
    const button = makeRowButton(time ?? 0, ...contentOf(place));
    if (time === undefined) {
        button.firstElementChild.remove();
        button.setAttribute('aria-disabled', 'true');
    } else {
        button.addEventListener('click', () => player.seek(time));
    }
    return button;
}

function makeKind({ key, language, places }, player) {
    const title = label(key, { count: places.length, language });
    const scroller = element('div');
    const details = element('details', { class: 'problem' }, element('summary', {}, title), scroller);
    details.addEventListener('toggle', () => {
        new VirtualList(scroller, { name: title, makeRow: (row) => makePlace(places[row], player) })
            .reset(places.length);
    }, { once: true });
    return details;
}

function makeNote(text) {
    return element('p', { class: 'panel-note' }, text);
}

/** Lists the problems in the container; returns their number. */
export function showProblems(container, { problems, groups }, player) {
    const count = problems.reduce((sum, { places }) => sum + places.length, 0);
    const summary = makeNote(count === 0 ? label('noProblems') : label('problemCount', { count }));
    const separate = groups.length < 2
        ? [] : [makeNote(label('timedSeparately', { groups: groups.map((group) => group.join(', ')).join(' | ') }))];
    container.replaceChildren(summary, ...separate, ...problems.map((problem) => makeKind(problem, player)));
    return count;
}
