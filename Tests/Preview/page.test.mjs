// The page by itself: it loads, shows every setting in the user's language, and what is done there reaches the phone.
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { test } from "node:test";
import { openPage, picture, settingsFile, sharePhoneAndBrowser, untilDark, untilLit, untilPictureDiffers,
    untilPictureIs } from "./support.mjs";

const bundle = new URL("../../Resources/LYRPrefs.bundle/", import.meta.url);
const languages = new URL("../../Product/Languages/", import.meta.url);

// Every cell of the settings pages that has a key, with its label's key, and the colours.
function cells() {
    return readdirSync(bundle).filter((name) => name.endsWith(".plist")).flatMap((name) => {
        const items = readFileSync(new URL(name, bundle), "utf8").split("<key>items</key>")[1].split("</array>\n\t<key>")[0];
        return items.split("<key>cell</key>").slice(1).flatMap((cell) => {
            const text = (key) => new RegExp(`<key>${key}</key>\\s*<string>(.*?)</string>`).exec(cell)?.[1];
            return text("key") ? [{ key: text("key"), label: text("label") }] : [];
        });
    });
}

let preview, browser;
sharePhoneAndBrowser((shared) => ({ preview, browser } = shared));

test("loads without a complaint and asks nobody but the preview", async () => {
    const page = await openPage(browser, preview.address);
    assert.deepEqual(page.complaints, []);
    assert.ok(page.requests.length > 5);
    for (const request of page.requests)
        assert.equal(new URL(request).host, new URL(preview.address).host);
    await page.context().close();
});

for (const [locale, file, word] of [["en-US", "en.json", "Connected"], ["de-DE", "de.json", "Verbunden"]]) {
    test(`shows every setting in the language of ${locale}`, async () => {
        const page = await openPage(browser, preview.address, { locale });
        const texts = JSON.parse(readFileSync(new URL(file, languages), "utf8")).settingsPages;
        const shown = await page.$$eval("[data-key]", (controls) =>
            controls.map((control) => ({ key: control.dataset.key, label: control.labels[0].textContent })));
        const wanted = cells().map(({ key, label }) => ({ key, label: texts[label] }));
        const byKey = (one, other) => one.key.localeCompare(other.key);
        assert.equal(wanted.length, 53);
        assert.deepEqual(shown.sort(byKey), wanted.sort(byKey));
        assert.equal(await page.textContent("#status"), word);
        await page.context().close();
    });
}

test("names every control for a screen reader", async () => {
    const page = await openPage(browser, preview.address);
    const nameless = await page.$$eval("input, select, button:not([hidden]), canvas", (controls) => controls
        .filter((control) => !control.labels?.length && !control.textContent.trim() && !control.getAttribute("aria-label"))
        .map((control) => control.outerHTML));
    assert.deepEqual(nameless, []);
    await page.context().close();
});

test("changes the phone's picture and its stored file with a setting", async () => {
    const page = await openPage(browser, preview.address);
    const before = await picture(page);
    await page.click("#tab-subTime");
    await page.locator("#panel-subTime").getByLabel("Font size").fill("120");
    await untilPictureDiffers(page, before);
    assert.match(preview.read(settingsFile), /<key>sizeTimeLabel<\/key>\s*<string>120<\/string>/);
    await page.locator("#panel-subTime").getByLabel("Font size").fill("90");
    await untilPictureIs(page, before);
    await page.context().close();
});

test("stores a colour as the phone writes it", async () => {
    const page = await openPage(browser, preview.address);
    const before = await picture(page);
    await page.click("#tab-subTime");
    await page.locator("[data-key=colourTime]").fill("#ff8000");
    await untilPictureDiffers(page, before);
    assert.match(preview.read("var/mobile/Library/Preferences/com.ostrel.colorslyr.plist"),
        /<key>colourTime<\/key>\s*<string>#FF8000:1.00<\/string>/);
    await page.context().close();
});

test("locks and wakes by keyboard", async () => {
    const page = await openPage(browser, preview.address);
    await page.keyboard.press("Escape");
    await untilDark(page);
    await page.keyboard.press("Space");
    await untilLit(page);
    await page.keyboard.press("Escape");
    await untilDark(page);
    await page.keyboard.press("Escape");
    await untilLit(page);
    await page.context().close();
});

test("is used by keyboard alone", async () => {
    const page = await openPage(browser, preview.address);
    const before = await picture(page);
    await page.keyboard.press("Tab");
    assert.equal(await page.evaluate(() => document.activeElement.id), "screen");
    for (const id of ["hand-sideButton", "hand-unlock", "hand-coverSheet", "hand-touchAndHold", "tab-Root"]) {
        await page.keyboard.press("Tab");
        assert.equal(await page.evaluate(() => document.activeElement.id), id);
    }
    await page.keyboard.press("ArrowRight");
    assert.equal(await page.evaluate(() => document.activeElement.id), "tab-subTime");
    await page.keyboard.press("Tab");
    assert.equal(await page.evaluate(() => document.activeElement.dataset.key), "enableTime");
    const outline = await page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
    assert.equal(outline, "solid");
    await page.keyboard.press("Space");
    await untilPictureDiffers(page, before);
    assert.match(preview.read(settingsFile), /<key>enableTime<\/key>\s*<false\/>/);
    await page.keyboard.press("Space");
    await untilPictureIs(page, before);
    await page.context().close();
});

test("changes the device's state", async () => {
    const page = await openPage(browser, preview.address);
    await page.click("#tab-phone");
    const before = await picture(page);
    await page.getByLabel("Level").fill("0.25");
    await untilPictureDiffers(page, before);
    const charged = await picture(page);
    await page.getByLabel("Landscape").check();
    await page.waitForFunction(() => document.getElementById("screen").width > document.getElementById("screen").height);
    await page.getByLabel("Landscape").uncheck();
    await untilPictureIs(page, charged);
    await page.locator("#panel-phone").getByLabel("Screen", { exact: true }).selectOption("320,568,2");
    await page.waitForFunction(() => document.getElementById("screen").width === 640);
    await page.context().close();
});
