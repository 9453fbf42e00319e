import { CaptionView } from './caption-view.js';
import { showDetails } from './detail-view.js';
import { byId, element, setName, textElement, writeLabels } from './dom.js';
import { addressBeside, readFirstPacket, sortFiles } from './files.js';
import { firstAfter, lastBefore } from './intervals.js';
import { ItemList } from './item-list.js';
import { label, labels } from './labels.js';
import { Player } from './media.js';
import { PacketError, decodeBase64, decodePacket, hasText, parsePacket } from './packet.js';
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
    hiddenCaptions = ['', ''];

    constructor() {
        document.documentElement.lang = labels.language;
        writeLabels(document);
        document.title = label('page');
        this.video = byId('video');
        this.pictures = new Pictures();
        this.player = new Player();
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
                this.pictures.make(entry.image, entry.start),
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
        try {
            this.#openPacket(parsePacket(decodePacket(packet)),
                report.length === 0 ? undefined : readReport(JSON.parse(new TextDecoder().decode(report))));
        } catch (error) {
            if (!(error instanceof PacketError)) throw error;
            this.#addError(label(error.key, error.values), error.excerpt);
        }
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
        for (const select of captionSelects()) select.addEventListener('change', () => this.#chooseCaptions());
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
        // Dragged text is for the search.
        const listenToDragged = (type, act) => document.addEventListener(type, (event) => {
            if (!event.dataTransfer.types.includes('Files')) return;
            event.preventDefault();
            act(event.dataTransfer);
        });
        listenToDragged('dragover', () => setDropping(true));
        document.addEventListener('dragleave', (event) => {
            if (event.relatedTarget === null) setDropping(false);
        });
        listenToDragged('drop', ({ files }) => {
            setDropping(false);
            this.#openFiles([...files]);
        });
        byId('dismiss').addEventListener('click', () => this.#clearError());
    }

    #listenToKeys() {
        const help = byId('help-dialog');
        const showHelp = () => help.showModal();
        byId('help').addEventListener('click', showHelp);
        byId('help-close').addEventListener('click', () => help.close());
        new Shortcuts(new Map([
            [' ', () => this.player.toggle()],
            ['k', () => this.player.toggle()],
            ['j', () => this.player.seek(this.player.time - jump)],
            ['l', () => this.player.seek(this.player.time + jump)],
            [',', () => this.#jumpToCaption(-1)],
            ['.', () => this.#jumpToCaption(1)],
            ['c', () => this.#toggleCaptions()],
            ['/', () => {
                byId('search').focus();
                byId('search').select();
            }],
            ['?', showHelp],
        ]), byId('shortcuts-on'));
    }

    // Opens the first packet, the first video and all images.
    async #openFiles(files) {
        const { videos, images, packets } = sortFiles(files);
        this.#clearError();
        const { file, packet, error } = await readFirstPacket(packets);
        if (error) this.#addError(label(error.key, error.values), error.excerpt);
        const unused = files.filter((other) => ![file, videos[0], ...images].includes(other)).map(({ name }) => name);
        if (unused.length > 0) this.#addError(label('filesNotUsed', { names: unused.join(', ') }));
        const news = [];
        if (packet) {
            this.#openPacket(packet);
            news.push(label('packetOpened', { name: file.name }));
        }
        for (const image of images) this.pictures.addFile(image);
        if (images.length > 0) {
            this.#remakePictures();
            news.push(label('imagesOpened', { count: images.length }));
        }
        if (news.length > 0) this.#announce(news.join(' '));
        if (videos.length > 0) this.#chooseVideo(videos[0]);
    }

    #openPacket(packet, reported) {
        this.packet = packet;
        const { header, captions, contents, screenTexts, languages } = this.packet;
        const last = [...captions.items, ...contents.items, ...screenTexts.items]
            .reduce((latest, item) => Math.max(latest, item.end), 0);
        const hasFocus = byId('welcome').contains(document.activeElement);
        byId('welcome').hidden = true;
        for (const id of ['player', 'panels', 'search-form']) byId(id).hidden = false;
        if (hasFocus) byId('play').focus();
        this.#showTitle(header);
        byId('stage').style.setProperty('--width', header.width || 1280);
        byId('stage').style.setProperty('--height', header.height || 720);
        byId('stage-note').textContent =
            label('stage', { width: String(header.width), height: String(header.height) });
        this.player.packetLength = Math.max(header.length, last);
        this.#findVideo();
        this.#fillLanguages(languages);
        this.captionView.open(this.packet);
        this.timeline.open(this.packet);
        this.search.open(this.packet);
        this.#chooseCaptions();
        this.#openTranscript();
        this.contents.open(contents.items);
        this.screenTexts.open(screenTexts.items);
        showDetails(byId('facts'), this.packet);
        const problems = showProblems(byId('problems'), reported ?? findProblems(this.packet), this.player);
        byId('problem-count').textContent = problems === 0 ? '' : String(problems);
        this.player.seek(0);
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
        const base = (language) => language.split('-')[0];
        const preferred = navigator.languages
            .map((language) => languages.find(({ id }) => base(id) === base(language))).find(Boolean);
        if (preferred) {
            byId('first-language').value = preferred.id;
            byId('transcript-language').value = preferred.id;
        }
        this.hiddenCaptions = captionSelects().map(({ value }) => value);
        byId('caption-choice').hidden = languages.length === 0;
        byId('transcript-choice').hidden = languages.length === 0;
    }

    #chooseCaptions() {
        const chosen = captionSelects().map(({ value }) => value);
        this.captionView.setLanguages([...new Set(chosen)].filter((language) => language !== ''));
        this.#drawTime();
    }

    // Hides all captions, or shows those that it hid; at first those that the page had chosen.
    #toggleCaptions() {
        const selects = captionSelects();
        const chosen = selects.map(({ value }) => value);
        const isShown = chosen.some((language) => language !== '');
        selects.forEach((select, index) => { select.value = isShown ? '' : this.hiddenCaptions[index]; });
        if (isShown) this.hiddenCaptions = chosen;
        this.#chooseCaptions();
    }

    #openTranscript() {
        const language = byId('transcript-language').value;
        this.transcript.open(this.packet.captions.items.filter((caption) => hasText(caption, language)));
    }

    #remakePictures() {
        this.contents.remake();
        this.screenTexts.remake();
    }

    #entryNote({ entry }) {
        const title = this.packet.contents.items.find(({ position }) => position === entry)?.text;
        return title ? [textElement('span', label('ofEntry', { entry: title }), '', { class: 'row-note' })] : [];
    }

    #jumpToCaption(direction) {
        const items = this.packet?.captions.items ?? [];
        const { time } = this.player;
        const target = items[direction > 0 ? firstAfter(items, time) : lastBefore(items, time)];
        if (target) this.player.seek(target.start);
    }

    // A video that the user chose stays until another one plays.
    #chooseVideo(file) {
        const source = { name: file.name, address: URL.createObjectURL(file), isChosen: true };
        forget(this.wanted);
        this.#tryVideos([source], () => {
            forget(source);
            this.#addError(label('videoFailed', source));
            this.#findVideo();
        });
    }

    // Looks for the content files of the packet beside the page, unless the user chose a video.
    #findVideo() {
        if (this.shown?.isChosen || this.wanted?.isChosen) return;
        this.#dropVideo();
        this.#tryVideos((this.packet?.header.files ?? []).map((name) => ({ name, address: addressBeside(name) }))
            .filter(({ address }) => address !== undefined));
    }

    // Shows the first of the sources that the browser can play, unless another one was wanted meanwhile.
    #tryVideos([source, ...others], onFailure = () => {}) {
        this.wanted = source;
        if (!source) {
            onFailure();
            return;
        }
        const probe = element('video', { preload: 'metadata' });
        const listen = (type, act) => probe.addEventListener(type, () => {
            if (this.wanted === source) act();
        }, { once: true });
        const use = () => this.#useVideo(source, probe.duration);
        listen('error', () => this.#tryVideos(others, onFailure));
        listen('loadedmetadata', () => {
            if (probe.duration !== Infinity) {
                use();
                return;
            }
            // A recording may not know its length before its end was sought.
            listen('seeked', use);
            probe.currentTime = Number.MAX_SAFE_INTEGER;
        });
        probe.src = source.address;
    }

    #useVideo(source, seconds) {
        this.wanted = undefined;
        this.#dropVideo();
        this.shown = source;
        this.video.src = source.address;
        this.player.use(this.video, seconds);
        this.pictures.useVideo(source.address);
        byId('mute').hidden = false;
        if (this.packet) this.timeline.open(this.packet);
        this.#remakePictures();
        this.#announce(label('videoOpened', source));
    }

    #dropVideo() {
        this.player.use(undefined);
        this.video.removeAttribute('src');
        this.video.load();
        this.pictures.useVideo(undefined);
        forget(this.shown);
        this.shown = undefined;
        byId('mute').hidden = true;
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
        byId('stage').classList.toggle('has-video', this.player.isInVideo);
    }

    #announce(text) {
        byId('status').textContent = text;
    }

    #addError(text, excerpt = '') {
        const shown = byId('error-text');
        shown.textContent = [shown.textContent, text].filter((line) => line !== '').join('\n');
        if (excerpt !== '') byId('error-excerpt').textContent = excerpt;
        byId('error-excerpt').hidden = byId('error-excerpt').textContent === '';
        byId('error').classList.remove('is-empty');
    }

    #clearError() {
        if (document.activeElement === byId('dismiss')) byId('open').focus();
        byId('error').classList.add('is-empty');
        for (const id of ['error-text', 'error-excerpt']) byId(id).textContent = '';
    }
}

function captionSelects() {
    return ['first-language', 'second-language'].map(byId);
}

// Frees a video that the user chose.
function forget(source) {
    if (source?.isChosen) URL.revokeObjectURL(source.address);
}

function imageNote({ image, index, offset }) {
    if (image === '') return [];
    const values = { name: image, index, offset };
    return [textElement('span', label('thumbnail', values), '', { class: 'row-note' })];
}

new Page().openEmbedded();
