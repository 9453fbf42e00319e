import { element, textElement } from './dom.js';
import { makeRowButton } from './item-list.js';
import { label } from './labels.js';
import { findProblems } from './problems.js';
import { VirtualList } from './virtual-list.js';

function faultText({ place, property, value }) {
    return label('fault', { place: label(place.key, place), property, value });
}

function makePlace(place, player) {
    const time = place.fault ? place.fault.place.time : place.time;
    const text = place.fault
        ? element('span', { class: 'row-text' }, faultText(place.fault))
        : textElement('span', place.earlier === undefined
            ? place.text || label('noText')
            : label('overlapping', { first: place.earlier, second: place.text }), place.language, { class: 'row-text' });
    const button = makeRowButton(time ?? 0, text);
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

/** Lists the problems of the packet in the container; returns their number. */
export function showProblems(container, packet, player) {
    const problems = findProblems(packet);
    const count = problems.reduce((sum, { places }) => sum + places.length, 0);
    const summary = count === 0 ? label('noProblems') : label('problemCount', { count });
    container.replaceChildren(
        element('p', { class: 'panel-note' }, summary), ...problems.map((problem) => makeKind(problem, player)));
    return count;
}
