import assert from 'node:assert/strict';
import test from 'node:test';
import { plainText } from '../../modules/rich-text.js';

const cases = [
    ['plain text stays as it is', '<i>{\\an8} a\\b</i>', '<i>{\\an8} a\\b</i>'],
    ['the placeholder of an empty text is empty', '{\\rtf1 }', ''],
    ['control words and groups are markup', '{\\rtf1\\ansi\\b bold\\b0  and {\\i slanted}}', 'bold and slanted'],
    ['paragraphs and lines are line feeds', '{\\rtf1 a\\par b\\line c}', 'a\nb\nc'],
    ['fonts, colours and unknown destinations are not text',
        '{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0;}{\\*\\generator X;}a}', 'a'],
    ['escaped characters are text', '{\\rtf1 \\{a\\\\b\\}}', '{a\\b}'],
    ['hexadecimal characters are text', "{\\rtf1 caf\\'e9}", 'caf\u00e9'],
    ['a Unicode character replaces its fallback', '{\\rtf1 \\u12354?b\\uc2\\u-10179??\\u-8696??}', '\u3042b\ud83d\ude08'],
    ['a fallback may be a hexadecimal character', "{\\rtf1 \\u233\\'e9t\\'e9}", '\u00e9t\u00e9'],
    ['line ends of the source are not text', '{\\rtf1 a\r\nb}', 'ab'],
    ['braces that do not match do no harm', '{\\rtf1 a}}}b', 'ab'],
];

for (const [name, text, expected] of cases) test(name, () => assert.equal(plainText(text), expected));
