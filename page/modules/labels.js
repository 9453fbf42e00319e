// Every text of the page, for translation: give the table of another language the same keys. `{name}` is
// replaced by a value. A label with a plural has a form for each category of Intl.PluralRules, which
// `{count}` selects. The page is ASCII, so write other characters as escapes: \u00fc.

export const labels = {
    language: 'en',

    page: 'Preview of a video packet',
    untitled: 'Untitled video',
    by: 'by {creator}',
    open: 'Open files\u2026',
    welcome: 'See what a packet holds',
    welcomeText: 'Open or drop a packet here, and the video and thumbnails that belong to it. '
        + 'The files stay on this computer.',
    drop: 'Drop the files to open them',
    dismiss: 'Dismiss',

    player: 'Player',
    stage: '{width} \u00d7 {height}, no video',
    play: 'Play',
    pause: 'Pause',
    previousCaption: 'Previous caption',
    nextCaption: 'Next caption',
    speed: 'Speed',
    mute: 'Mute',
    seekBar: 'Position',
    position: '{time} of {duration}',
    hours: { one: '{count} hour', other: '{count} hours' },
    minutes: { one: '{count} minute', other: '{count} minutes' },
    seconds: { one: '{count} second', other: '{count} seconds' },
    captions: 'Captions',
    secondCaptions: 'Second captions',
    noCaptions: 'None',
    moreCaptions: { one: 'and {count} more', other: 'and {count} more' },
    timeline: 'Timeline of captions, contents and screen texts',
    laneOfContents: 'Contents',
    laneOfScreenTexts: 'Screen text',

    panels: 'Lists',
    transcript: 'Transcript',
    contents: 'Contents',
    screenTexts: 'Screen text',
    results: 'Search',
    problems: 'Problems',
    details: 'Details',
    transcriptLanguage: 'Language of the transcript',
    follow: 'Follow the video',
    nothing: 'The packet has none.',
    noTitle: '(no title)',
    noText: '(no text)',
    thumbnail: '{name}, image {index}, offset {offset}',
    ofEntry: 'in \u201c{entry}\u201d',

    search: 'Search',
    searchHint: 'Captions, contents, screen text',
    hits: { one: '{count} hit', other: '{count} hits' },
    noHits: 'No hit',
    hitInCaption: 'Caption, {language}',
    hitInContents: 'Contents',
    hitInScreenText: 'Screen text',

    noProblems: 'No problems.',
    problemCount: { one: '{count} problem', other: '{count} problems' },
    unreadableValue: { one: 'A value cannot be read', other: '{count} values cannot be read' },
    overlapIn: {
        one: 'Captions in {language} overlap once',
        other: 'Captions in {language} overlap {count} times',
    },
    captionWithoutLength: { one: 'A caption has no length', other: '{count} captions have no length' },
    captionLacksLanguage: {
        one: 'A caption lacks {language}',
        other: '{count} captions lack {language}',
    },
    captionWithoutText: {
        one: 'A caption has no text in any language',
        other: '{count} captions have no text in any language',
    },
    captionBeyondLength: {
        one: 'A caption goes beyond the end of the video',
        other: '{count} captions go beyond the end of the video',
    },
    entryBeyondLength: {
        one: 'An entry of the contents starts after the end of the video',
        other: '{count} entries of the contents start after the end of the video',
    },
    entryWithoutTitle: {
        one: 'An entry of the contents has no title',
        other: '{count} entries of the contents have no title',
    },
    screenTextWithoutLength: {
        one: 'A screen text has no length',
        other: '{count} screen texts have no length',
    },
    screenTextWithoutText: { one: 'A screen text is empty', other: '{count} screen texts are empty' },
    screenTextBeyondLength: {
        one: 'A screen text goes beyond the end of the video',
        other: '{count} screen texts go beyond the end of the video',
    },
    screenTextOfUnknownEntry: {
        one: 'A screen text belongs to an entry that the contents do not have',
        other: '{count} screen texts belong to entries that the contents do not have',
    },
    timedSeparately: 'Timed separately, so a caption of one need not have the others: {groups}',
    // The kinds of problems in the report of the program that wrote the packet.
    'malformed-cue': { one: 'A malformed cue was left out', other: '{count} malformed cues were left out' },
    'cue-without-length': {
        one: 'A cue without length was left out',
        other: '{count} cues without length were left out',
    },
    'file-without-cue': { one: 'A file has no cue', other: '{count} files have no cue' },
    'text-outside-cue': { one: 'A text outside a cue was left out', other: '{count} texts outside a cue were left out' },
    'swallowed-cue': {
        one: 'A text seems to contain a malformed cue',
        other: '{count} texts seem to contain a malformed cue',
    },
    'swallowed-number': {
        one: 'A text ends with the number of the next cue, because a blank line is missing',
        other: '{count} texts end with the number of the next cue, because a blank line is missing',
    },
    'beyond-length': {
        one: 'A cue ends after the end of the video',
        other: '{count} cues end after the end of the video',
    },
    'cue-without-text': { one: 'A cue has no text', other: '{count} cues have no text' },
    'too-short': { one: 'A caption is too short', other: '{count} captions are too short' },
    'too-many-lines': { one: 'A caption has too many lines', other: '{count} captions have too many lines' },
    overlap: {
        one: 'A caption starts while another one shows in its language',
        other: '{count} captions start while another one shows in their language',
    },
    'missing-language': { one: 'A caption lacks a language', other: '{count} captions lack a language' },
    overlapping: '{first} / {second}',
    fault: '{place}, {property}: \u201c{value}\u201d',
    faultOfCaption: 'caption {number}',
    faultOfEntry: 'entry {number}',
    faultOfScreenText: 'screen text {number}',
    faultOfTrack: 'track {number}',
    faultOfHeader: 'header',

    factTitle: 'Title',
    factDescription: 'Description',
    factCreator: 'Creator',
    factDate: 'Written',
    factDateUtc: '{date} {time} UTC',
    factSource: 'Application',
    factKeywords: 'Keywords',
    factLength: 'Length',
    factSize: 'Frame size',
    factSizeValue: '{width} \u00d7 {height} pixels',
    factExplicit: 'Explicit content',
    factSearchBar: 'Search bar of the player',
    factLanguages: 'Languages',
    factLanguage: '{name} ({id})',
    factFiles: 'Content files',
    factThumbnail: 'Thumbnail',
    factFirstFrame: 'First frame',
    factVersion: 'Version of the format',
    factCaptions: 'Captions',
    factFont: 'Font of the captions',
    factFontValue: '{family}, {size} pixels',
    factColours: 'Colours of the captions',
    factColoursValue: '{colour} on {background}, opacity {opacity}',
    factContents: 'Entries of the contents',
    factContentsImage: 'Image file of the contents',
    factScreenTexts: 'Screen texts',
    factRate: '{count}, times in units of 1/{rate} s',
    yes: 'Yes',
    no: 'No',

    help: 'Keyboard',
    helpTitle: 'Keyboard shortcuts',
    shortcutsOn: 'Use the shortcuts',
    close: 'Close',
    shortcutPlay: 'Play or pause',
    shortcutBack: '10 seconds back',
    shortcutForward: '10 seconds forward',
    shortcutPrevious: 'Previous caption',
    shortcutNext: 'Next caption',
    shortcutCaptions: 'Captions on or off',
    shortcutSearch: 'Search',
    shortcutHelp: 'This list',
    keySpace: 'Space',

    packetOpened: 'Opened the packet {name}.',
    videoOpened: 'Opened the video {name}.',
    imagesOpened: { one: 'Opened an image.', other: 'Opened {count} images.' },
    videoFailed: 'The browser cannot play {name}.',
    filesNotUsed: 'Not used: {names}.',
    fileFailed: 'The file {name} cannot be read.',
    notUtf8: 'This is not a packet: byte {byte} is not UTF-8.',
    empty: 'This is not a packet: it is empty.',
    doctype: 'This is not a packet: a packet has no document type declaration. Line {line}, column {column}:',
    malformed: 'The packet is broken. Line {line}, column {column}: {reason}',
    foreignRoot: 'This is XML, but not a packet: the outermost element is {found}, not {expected}.',
    foreignContent: 'This is not a packet of this format: {parent} contains no {expected}.',
};

const plurals = new Intl.PluralRules(labels.language);
const numbers = new Intl.NumberFormat(labels.language);

/** Returns the label with its values; a value that is a number is written as the language does. */
export function label(key, values = {}) {
    const entry = labels[key];
    const text = typeof entry === 'string' ? entry : entry[plurals.select(values.count)] ?? entry.other;
    return text.replace(/\{(\w+)\}/g, (_, name) =>
        typeof values[name] === 'number' ? numbers.format(values[name]) : values[name]);
}
