import { CaptionView } from './caption-view.js';
import { showDetails } from './detail-view.js';
import { byId, element, setName, textElement, writeLabels } from './dom.js';
import { addressBeside, sortFiles } from './files.js';
import { firstAfter, lastBefore } from './intervals.js';
import { ItemList } from './item-list.js';
import { label, labels } from './labels.js';
import { Player, StageClock } from './media.js';
import { PacketError, decodeBase64, decodePacket, parsePacket } from './packet.js';
import { Pictures } from './pictures.js';
import { showProblems } from './problem-view.js';
import { findProblems, readReport } from './problems.js';
import { SearchView } from './search-view.js';
import { SeekBar } from './seek-bar.js';
import { Shortcuts } from './shortcuts.js';
import { Tabs } from './tabs.js';
import { Timeline } from './timeline.js';
import { formatTime } from './times.js';

const jump = 10000;

class Page {
    constructor() {
        document.documentElement.lang = labels.language;
        writeLabels(document);
        document.title = label('page');
        this.video = byId('video');
        this.pictures = new Pictures();
        this.player = new Player(new StageClock(0), 0);
        this.captionView = new CaptionView(byId('captions'));
        this.seekBar = new SeekBar(byId('seek-bar'), this.player);
        this.timeline = new Timeline(byId('lanes'), this.player);
        this.tabs = new Tabs(byId('tabs'));
        this.transcript = new ItemList(byId('transcript-rows'), this.player, {
            name: label('transcript'),
            makeContent: (caption) => {
                const language = byId('transcript-language').value;
                return [textElement('span', caption.texts.get(language), language, { class: 'row-text' })];
            },
        });
        this.contents = new ItemList(byId('contents-rows'), this.player, {
            name: label('contents'),
            estimate: 100,
            makeContent: (entry) => [
                this.pictures.make(entry.image || this.packet.contents.image, entry.start),
                element('span', { class: 'row-lines' },
                    textElement('span', entry.text || label('noTitle'), '', { class: 'row-text' }), ...imageNote(entry)),
            ],
        });
        this.screenTexts = new ItemList(byId('screen-text-rows'), this.player, {
            name: label('screenTexts'),
            estimate: 100,
            makeContent: (item) => [
                this.pictures.make(item.image, item.start),
                element('span', { class: 'row-lines' },
                    textElement('span', item.text || label('noText'), '', { class: 'row-text' }),
                    ...this.#entryNote(item), ...imageNote(item)),
            ],
        });
        this.search = new SearchView({
            input: byId('search'),
            count: byId('hit-count'),
            scroller: byId('result-rows'),
            show: () => this.tabs.select(byId('tab-results')),
        }, this.player);
        this.#listen();
    }

    /** Opens the packet that the page contains, if there is one, with the problems in the report. */
    openEmbedded() {
        const [packet, report] = ['packet', 'report'].map((id) => decodeBase64(byId(id).textContent.trim()));
        if (packet.length === 0) return;
        this.#openPacket(packet, report.length === 0 ? undefined : readReport(JSON.parse(new TextDecoder().decode(report))));
    }

    #listen() {
        this.player.addEventListener('time', () => this.#drawTime());
        this.player.addEventListener('state', () => this.#drawState());
        byId('play').addEventListener('click', () => this.player.toggle());
        byId('previous').addEventListener('click', () => this.#jumpToCaption(-1));
        byId('next').addEventListener('click', () => this.#jumpToCaption(1));
        byId('speed').addEventListener('change', ({ target }) => { this.player.rate = Number(target.value); });
        byId('mute').addEventListener('click', () => {
            this.video.muted = !this.video.muted;
            byId('mute').setAttribute('aria-pressed', String(this.video.muted));
        });
        byId('follow').addEventListener('change', ({ target }) => { this.transcript.isFollowing = target.checked; });
        this.transcript.isFollowing = byId('follow').checked;
        for (const id of ['first-language', 'second-language'])
            byId(id).addEventListener('change', () => this.#chooseCaptions());
        byId('transcript-language').addEventListener('change', () => this.#openTranscript());
        byId('search-form').addEventListener('submit', (event) => event.preventDefault());
        this.#listenToFiles();
        this.#listenToKeys();
    }

    #listenToFiles() {
        const picker = byId('files');
        for (const id of ['open', 'welcome-open']) byId(id).addEventListener('click', () => picker.click());
        picker.addEventListener('change', () => {
            this.#openFiles([...picker.files]);
            picker.value = '';
        });
        const setDropping = (isDropping) => document.body.classList.toggle('is-dropping', isDropping);
        document.addEventListener('dragover', (event) => {
            event.preventDefault();
            setDropping(true);
        });
        document.addEventListener('dragleave', (event) => {
            if (event.relatedTarget === null) setDropping(false);
        });
        document.addEventListener('drop', (event) => {
            event.preventDefault();
            setDropping(false);
            this.#openFiles([...event.dataTransfer.files]);
        });
        byId('dismiss').addEventListener('click', () => this.#showError(''));
    }

    #listenToKeys() {
        const help = byId('help-dialog');
        const showHelp = () => help.showModal();
        byId('help').addEventListener('click', showHelp);
        byId('help-close').addEventListener('click', () => help.close());
        const first = byId('first-language');
        let chosen = '';
        new Shortcuts(new Map([
            [' ', () => this.player.toggle()],
            ['k', () => this.player.toggle()],
            ['j', () => this.player.seek(this.player.time - jump)],
            ['l', () => this.player.seek(this.player.time + jump)],
            [',', () => this.#jumpToCaption(-1)],
            ['.', () => this.#jumpToCaption(1)],
            ['c', () => {
                [first.value, chosen] = first.value === '' ? [chosen, ''] : ['', first.value];
                this.#chooseCaptions();
            }],
            ['/', () => byId('search').focus()],
            ['?', showHelp],
        ]), byId('shortcuts-on'));
    }

    async #openFiles(files) {
        const { videos, images, packets } = sortFiles(files);
        this.#showError('');
        for (const file of packets.slice(0, 1)) {
            try {
                this.#openPacket(new Uint8Array(await file.arrayBuffer()));
                this.#announce(label('packetOpened', { name: file.name }));
            } catch {
                this.#showError(label('fileFailed', { name: file.name }));
            }
        }
        for (const image of images) this.pictures.addFile(image);
        if (images.length > 0) this.#announce(label('imagesOpened', { count: images.length }));
        if (videos.length > 0) this.#openVideo(videos[0].name, URL.createObjectURL(videos[0]));
        else if (images.length > 0) this.#openLists();
    }

    #openPacket(bytes, reported) {
        try {
            this.packet = parsePacket(decodePacket(bytes));
        } catch (error) {
            if (!(error instanceof PacketError)) throw error;
            this.#showError(label(error.key, error.values), error.excerpt);
            return;
        }
        const { header, captions, contents, screenTexts, languages } = this.packet;
        const last = [...captions.items, ...contents.items, ...screenTexts.items]
            .reduce((latest, item) => Math.max(latest, item.end), 0);
        byId('welcome').hidden = true;
        byId('player').hidden = false;
        byId('panels').hidden = false;
        byId('search-form').hidden = false;
        this.#showTitle(header);
        byId('stage').style.setProperty('--width', header.width || 1280);
        byId('stage').style.setProperty('--height', header.height || 720);
        byId('stage-note').textContent =
            label('stage', { width: String(header.width), height: String(header.height) });
        this.player.duration = Math.max(header.length, last);
        this.#useClock();
        this.#fillLanguages(languages);
        this.captionView.open(this.packet);
        this.timeline.open(this.packet);
        this.search.open(this.packet);
        this.#chooseCaptions();
        this.#openLists();
        showDetails(byId('facts'), this.packet);
        const problems = showProblems(byId('problems'), reported ?? findProblems(this.packet), this.player);
        byId('problem-count').textContent = problems === 0 ? '' : String(problems);
        this.player.seek(0);
        this.#tryVideos(header.files);
    }

    #showTitle({ title, creator }) {
        byId('title').textContent = title || label('untitled');
        document.title = title || label('page');
        byId('creator').textContent = creator && label('by', { creator });
    }

    #fillLanguages(languages) {
        const options = () => languages.map(({ id, name }) => element('option', { value: id }, name));
        const none = () => element('option', { value: '' }, label('noCaptions'));
        byId('first-language').replaceChildren(...options(), none());
        byId('second-language').replaceChildren(none(), ...options());
        byId('transcript-language').replaceChildren(...options());
        const preferred = languages.find(({ id }) => navigator.languages.some((language) =>
            language.split('-')[0] === id.split('-')[0]));
        if (preferred) {
            byId('first-language').value = preferred.id;
            byId('transcript-language').value = preferred.id;
        }
        byId('caption-choice').hidden = languages.length === 0;
        byId('transcript-choice').hidden = languages.length === 0;
    }

    #chooseCaptions() {
        const chosen = [byId('first-language').value, byId('second-language').value];
        this.captionView.setLanguages([...new Set(chosen)].filter((language) => language !== ''));
        this.#drawTime();
    }

    #openTranscript() {
        const language = byId('transcript-language').value;
        this.transcript.open(this.packet.captions.items.filter((caption) =>
            (caption.texts.get(language) ?? '').trim() !== ''));
    }

    #openLists() {
        if (!this.packet) return;
        this.#openTranscript();
        this.contents.open(this.packet.contents.items);
        this.screenTexts.open(this.packet.screenTexts.items);
    }

    #entryNote({ entry }) {
        const title = this.packet.contents.items[entry]?.text;
        return title ? [textElement('span', label('ofEntry', { entry: title }), '', { class: 'row-note' })] : [];
    }

    #jumpToCaption(direction) {
        const { items } = this.packet.captions;
        const { time } = this.player;
        const target = items[direction > 0 ? firstAfter(items, time) : lastBefore(items, time)];
        if (target) this.player.seek(target.start);
    }

    #useClock() {
        this.player.use(new StageClock(this.player.duration / 1000));
        this.video.removeAttribute('src');
        this.pictures.useVideo(undefined);
        byId('stage').classList.remove('has-video');
        byId('mute').hidden = true;
    }

    // Tries the content files of the packet beside the page, until the browser can play one.
    #tryVideos([name, ...others]) {
        const address = name === undefined ? undefined : addressBeside(name);
        if (address) this.#openVideo(name, address, () => this.#tryVideos(others));
    }

    #openVideo(name, address, onFailure = () => this.#showError(label('videoFailed', { name }))) {
        const { packet } = this;
        const probe = element('video', { preload: 'metadata' });
        probe.addEventListener('error', () => {
            if (packet === this.packet) onFailure();
        });
        probe.addEventListener('loadedmetadata', () => {
            if (packet !== this.packet) return;
            this.video.src = address;
            this.player.use(this.video);
            this.pictures.useVideo(address);
            byId('stage').classList.add('has-video');
            byId('mute').hidden = false;
            this.#openLists();
            this.#announce(label('videoOpened', { name }));
        });
        probe.src = address;
    }

    #drawTime() {
        const { time, duration } = this.player;
        byId('time').textContent = formatTime(time);
        byId('duration').textContent = formatTime(duration);
        this.seekBar.draw();
        this.timeline.draw();
        this.captionView.draw(time);
        for (const list of [this.transcript, this.contents, this.screenTexts]) list.draw();
    }

    #drawState() {
        setName(byId('play'), label(this.player.isPlaying ? 'pause' : 'play'));
        byId('play').classList.toggle('is-playing', this.player.isPlaying);
    }

    #announce(text) {
        byId('status').textContent = text;
    }

    #showError(text, excerpt = '') {
        byId('error-text').textContent = text;
        byId('error-excerpt').textContent = excerpt;
        byId('error-excerpt').hidden = excerpt === '';
        byId('error').classList.toggle('is-empty', text === '');
    }
}

function imageNote({ image, index, offset }) {
    if (image === '') return [];
    const values = { name: image, index: String(index), offset: String(offset) };
    return [textElement('span', label('thumbnail', values), '', { class: 'row-note' })];
}

new Page().openEmbedded();
