import assert from 'node:assert/strict';
import test from 'node:test';
import { directionOf } from '../../modules/dom.js';

const directions = {
    rtl: ['ar', 'ar-EG', 'ara', 'he', 'iw', 'fa', 'ur', 'yi', 'ps', 'dv', 'ug', 'pa-PK', 'az-Arab', 'ff-Adlm'],
    ltr: ['en', 'en-US', 'ja', 'zh-Hant', 'pa', 'az', 'ar-Latn'],
    auto: ['', 'qqq', 'ar_EG', '__proto__'],
};
for (const [direction, languages] of Object.entries(directions)) {
    test(`texts run ${direction} in their languages`, () => {
        assert.deepEqual(languages.filter((language) => directionOf(language) !== direction), []);
    });
}
