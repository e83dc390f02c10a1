// The editor in the browser: what is picked there by hand is on the phone, on its disk, and still there after a reload.
import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { call, coloursFile, openPage, picture, settingsFile, sharePhoneAndBrowser, until, untilPictureDiffers,
    untilShown } from "./support.mjs";

let root, preview, browser;
sharePhoneAndBrowser((shared) => ({ root, preview, browser } = shared));

async function view(page, id) {
    return (await call(page, "view.get", { id })).result;
}

// Where a control is on the page; what lies on the panel counts from the panel's corner.
async function placeOf(page, id, [across, down] = [0.5, 0.5], parent = "_optionView") {
    const screen = await page.locator("#screen").boundingBox();
    const [x, y, width, height] = (await view(page, id)).frame;
    const [left, top] = parent ? (await view(page, parent)).frame : [0, 0];
    return [screen.x + (left + x + width * across) * screen.width / 375,
        screen.y + (top + y + height * down) * screen.height / 812];
}

async function click(page, id, where, parent) {
    await page.mouse.click(...await placeOf(page, id, where, parent));
}

async function openEditor(page) {
    const { x, y, width, height } = await page.locator("#screen").boundingBox();
    await page.mouse.move(x + width / 2, y + height / 2);
    await page.mouse.down();
    await untilShown(page, "_segmentedControl");
    await page.mouse.up();
}

async function drag(page, from, to, steps = 8) {
    await page.mouse.move(...from);
    await page.mouse.down();
    await page.mouse.move(...to, { steps });
    await page.mouse.up();
}

function stored(page, key, isWanted = (value) => value !== undefined) {
    return until(page, async () => (await call(page, "settings.get")).result.values[key], isWanted);
}

test("keeps a font, a place and a colour that were picked on the lock screen", async () => {
    const page = await openPage(browser, preview.address);
    const plain = await picture(page);
    assert.ok(existsSync(join(root, coloursFile)), "the page's phone has a colour file to write to");
    await openEditor(page);

    const wheel = await placeOf(page, "_pickerView1");
    await drag(page, wheel, [wheel[0], wheel[1] - 60]);
    const font = await stored(page, "customFontPickerTime");

    await click(page, "_segmentedControl", [0.9, 0.5]);
    await untilShown(page, "_sliderX");
    const { value, maximum } = await view(page, "_sliderX");
    assert.equal(value, 0);
    await drag(page, await placeOf(page, "_sliderX"), await placeOf(page, "_sliderX", [0.7, 0.5]), 2);
    // Where the first of the two steps leads is stored too, a fifth of the way.
    const offset = await stored(page, "XtimeLabel", (text) => Number(text) > maximum * 0.3);
    assert.match(offset, /^\d+\.\d{6}$/);

    await click(page, "_segmentedControl", [0.45, 0.5]);
    await untilShown(page, "_colorWheel1");
    await click(page, "_colorWheel1");
    const { result } = await until(page, () => call(page, "colours.get"), (reply) => reply.result.values.colourTime);
    assert.match(result.values.colourTime, /^#[0-9A-F]{6}:1\.00$/);

    await click(page, "_done", undefined, null);
    await until(page, () => view(page, "_optionView"), (found) => !found);
    await untilPictureDiffers(page, plain);
    assert.deepEqual(page.complaints, []);
    await page.reload();
    await page.waitForSelector("#screen[data-frame]");
    const label = await until(page, () => view(page, "_timeLabel"), (found) => found.font.name === font);
    assert.equal(label.textColor.slice(0, 7), result.values.colourTime.slice(0, 7));
    assert.ok(Math.abs(label.frame[0] - 7 - Number(offset)) < 1e-3);
    assert.ok(preview.read(settingsFile).includes(`<string>${font}</string>`));
    assert.ok(preview.read(coloursFile).includes(result.values.colourTime));
    assert.deepEqual(page.complaints, []);
    await page.context().close();
});

test("picks a colour in the system's own sheet", async () => {
    const page = await openPage(browser, preview.address);
    await openEditor(page);
    await click(page, "_dateButton", undefined, null);
    await click(page, "_segmentedControl", [0.3, 0.5]);
    await untilShown(page, "_showWell");
    await click(page, "_showWell");
    await untilShown(page, "colorWell2");
    await click(page, "colorWell2", undefined, "colorWellView");
    await untilShown(page, "system.colourSheet.grid");
    await call(page, "control.set", { id: "colorWell2", value: "#FF8000FF" });
    await until(page, () => call(page, "colours.get"), (reply) => reply.result.values.colourDate === "#FF8000:1.0");
    const label = await until(page, () => view(page, "_dateLabel"), (found) => found.textColor === "#FF8000FF");
    assert.equal(label.hidden, false);
    assert.deepEqual(page.complaints, []);
    await page.context().close();
});
