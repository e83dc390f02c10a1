// The page's texts: every language has every one, and the page asks for none that there is not.
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { test } from "node:test";

const page = new URL("../../Simulator/Preview/Page/", import.meta.url);
const sources = new URL("../../Product/Languages/", import.meta.url);
const read = (name, folder = page) => readFileSync(new URL(name, folder), "utf8");
const source = (language) => JSON.parse(read(`${language}.json`, sources));
// By its name alone, not every Node takes the page's script for a module.
const { chooseLanguage } = await import(`data:text/javascript,${encodeURIComponent(read("texts.js"))}`);
const languages = readdirSync(sources).map((name) => name.slice(0, -5));
const english = source("en").preview;

for (const language of languages) {
    test(`every text is there in ${language}, with its star where it has one`, () => {
        const texts = source(language).preview;
        assert.deepEqual(Object.keys(texts).sort(), Object.keys(english).sort());
        for (const [key, text] of Object.entries(texts)) {
            assert.ok(text.trim(), key);
            assert.equal(text.includes("*"), english[key].includes("*"), key);
        }
    });
}

test("a language is named as the phone names it", () => {
    for (const language of languages)
        assert.equal(source(language).identifier.toLowerCase(), language);
});

test("every text that a panel asks for by its key is there", () => {
    const known = new Set([...Object.keys(english), ...Object.keys(source("en").settingsPages)]);
    const asked = readdirSync(page).filter((name) => name.endsWith(".js")).flatMap((name) =>
        [...read(name).matchAll(/(?:\.text|\btext|texts\.of)\("(\w+)"/g)].map(([, key]) => key));
    assert.ok(asked.length > 40);
    assert.deepEqual(asked.filter((key) => !known.has(key)), []);
});

test("the browser's preferences choose the language", () => {
    const choose = (...wanted) => chooseLanguage(wanted, languages);
    assert.equal(choose("de-AT", "en"), "de");
    assert.equal(choose("zh-TW"), "zh-hant");
    assert.equal(choose("zh-Hant-HK"), "zh-hant");
    assert.equal(choose("zh-CN"), "zh-hans");
    assert.equal(choose("nl", "pt-BR"), "pt");
    assert.equal(choose("nl"), "en");
    assert.equal(choose(), "en");
});
