import { element, textElement } from './dom.js';
import { makeRowButton } from './item-list.js';
import { label } from './labels.js';
import { PacketSearch, fold, splitAtMatches } from './search.js';
import { VirtualList } from './virtual-list.js';

const indexStep = 2000;

/** Searches while the user types, announces the number of hits, and jumps to the hit that is pressed. */
export class SearchView {
    #hits = [];
    #query = '';

    /** `show()` makes the hits visible. */
    constructor({ input, count, scroller, show }, player) {
        Object.assign(this, { input, count, show });
        this.list = new VirtualList(scroller, {
            name: label('results'),
            estimate: 64,
            makeRow: (row) => {
                const hit = this.#hits[row];
                const button = makeRowButton(hit.time, this.#makeKind(hit), this.#makeText(hit));
                button.addEventListener('click', () => player.seek(hit.time));
                return button;
            },
        });
        input.addEventListener('input', () => this.run());
        input.addEventListener('keydown', (event) => {
            if (event.key !== 'Enter' || event.isComposing) return;
            event.preventDefault();
            if (this.#hits.length > 0) this.show();
            this.list.focus();
        });
        input.placeholder = label('searchHint');
    }

    open(packet) {
        const search = new PacketSearch(packet);
        this.search = search;
        this.names = new Map(packet.languages.map(({ id, name }) => [id, name]));
        this.input.value = '';
        this.#show('', []);
        this.#report('');
        // The first search is as fast as the others if the page had a moment to build the index.
        const later = window.requestIdleCallback ?? setTimeout;
        const build = () => {
            if (this.search === search && search.addToIndex(indexStep)) later(build);
        };
        later(build);
    }

    run() {
        const query = fold(this.input.value.trim());
        if (query === this.#query) return;
        this.#show(query, this.search.find(query));
        if (query === '') {
            this.#report('');
        } else {
            this.show();
            this.#report(this.#hits.length === 0 ? label('noHits') : label('hits', { count: this.#hits.length }));
        }
    }

    #show(query, hits) {
        this.#query = query;
        this.#hits = hits;
        this.list.reset(hits.length);
    }

    #report(text) {
        this.count.textContent = text;
    }

    #makeKind({ kind, language }) {
        return element('span', { class: 'row-note' }, label(kind, { language: this.names.get(language) }));
    }

    #makeText({ text, language }) {
        const parts = splitAtMatches(text, this.#query).map((part, index) =>
            index % 2 === 1 ? element('mark', {}, part) : part);
        const made = textElement('span', '', language, { class: 'row-text' });
        made.append(...parts);
        return made;
    }
}
