// Caption texts may be RTF; everything else is plain text.

// Groups whose content is not text.
const destinations = new Set(['fonttbl', 'colortbl', 'stylesheet', 'info', 'pict', 'object', 'header', 'footer']);

const characters = new Map([
    ['par', '\n'], ['line', '\n'], ['tab', '\t'], ['emdash', '\u2014'], ['endash', '\u2013'],
    ['bullet', '\u2022'], ['lquote', '\u2018'], ['rquote', '\u2019'], ['ldblquote', '\u201c'],
    ['rdblquote', '\u201d'], ['~', '\u00a0'], ['_', '\u2011'], ['-', '\u00ad'],
    ['\\', '\\'], ['{', '{'], ['}', '}'], ['\n', '\n'],
]);

// A control word with its parameter, a hexadecimal character, a control symbol, a brace, a line end
// (not text), or text.
const token = /\\([a-z]+)(-?\d+)? ?|\\'([0-9a-f]{2})|\\([^])|([{}])|[\r\n]+|([^\\{}\r\n]+)/gi;

/** Returns the text without the markup of RTF, if it is RTF. */
export function plainText(text) {
    if (!text.startsWith('{\\rtf')) return text;
    const windows1252 = new TextDecoder('windows-1252');
    let result = '';
    let group = { hidden: false, fallback: 1 };
    const groups = [];
    // How many characters still follow a \u, for readers without Unicode.
    let skipped = 0;
    const write = (written) => {
        const taken = Math.min(skipped, written.length);
        skipped -= taken;
        if (!group.hidden) result += written.slice(taken);
    };
    for (const [, word, parameter, hexadecimal, symbol, brace, run] of text.matchAll(token)) {
        if (brace === '{') {
            groups.push(group);
            group = { ...group };
            skipped = 0;
        } else if (brace === '}') {
            group = groups.pop() ?? group;
            skipped = 0;
        } else if (run !== undefined) {
            write(run);
        } else if (hexadecimal !== undefined) {
            write(windows1252.decode(Uint8Array.of(parseInt(hexadecimal, 16))));
        } else if (word === 'u') {
            if (!group.hidden) result += String.fromCharCode(Number(parameter) & 0xffff);
            skipped = group.fallback;
        } else if (word === 'uc') {
            group.fallback = Number(parameter);
        } else if (symbol === '*' || destinations.has(word)) {
            group.hidden = true;
        } else if (characters.has(word ?? symbol)) {
            write(characters.get(word ?? symbol));
        }
    }
    return result;
}
