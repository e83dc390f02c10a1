// What goes in and out of the page: pictures, settings files, links, fonts, wallpapers.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { call, coloursFile, openPage, picture, settingsFile, sharePhoneAndBrowser, still, untilPictureDiffers,
    untilPictureIs, untilStatus, wallpaperFile } from "./support.mjs";

const fontFolder = "Library/Application Support/LYRFont";
let root, preview, browser;
sharePhoneAndBrowser((shared) => ({ root, preview, browser } = shared));

async function openLook() {
    const page = await openPage(browser, preview.address);
    await page.click("#tab-look");
    return page;
}

async function download(page, button) {
    const [saved] = await Promise.all([page.waitForEvent("download"), page.click(button)]);
    return { name: saved.suggestedFilename(), bytes: readFileSync(await saved.path()) };
}

function drop(page, name, bytes) {
    return page.setInputFiles("#open-file", { name, mimeType: "", buffer: Buffer.from(bytes) });
}

test("saves the picture that it shows", async () => {
    const page = await openLook();
    const { name, bytes } = await download(page, "#save-picture");
    assert.equal(name, "lock.png");
    const shown = await page.evaluate(async (bytes) => {
        const bitmap = await createImageBitmap(new Blob([new Uint8Array(bytes)]));
        const canvas = Object.assign(document.createElement("canvas"), { width: bitmap.width, height: bitmap.height });
        const context = canvas.getContext("2d", { alpha: false });
        context.drawImage(bitmap, 0, 0);
        return canvas.toDataURL();
    }, [...bytes]);
    assert.ok(shown === await picture(page), "the file holds other pixels");
    assert.deepEqual([bytes.readUInt32BE(16), bytes.readUInt32BE(20)], [375, 812]);
    await page.context().close();
});

test("carries a look in a link and takes it back", async () => {
    const page = await openLook();
    const plain = await picture(page);
    await call(page, "settings.set", { values: { sizeTimeLabel: "120", customText: "Grüße & <שלום>" } });
    await call(page, "colours.set", { values: { colourTime: "#00FF00:1.00" } });
    await page.waitForFunction(() => document.querySelector("[data-key=customText]").value.startsWith("Grüße"));
    await untilPictureDiffers(page, plain);
    const { look } = (await call(page, "look.get")).result;
    await page.click("#copy-link");
    await untilStatus(page, "copied");
    const link = await page.evaluate(() => navigator.clipboard.readText());
    assert.ok(link.startsWith(`${preview.address}#look=1.`));
    await call(page, "look.set", { look: { lyrlook: 1, settings: still, colours: {} } });
    await untilPictureIs(page, plain);
    await page.context().close();

    const other = await openPage(browser, link);
    await untilStatus(other, "look of the link");
    assert.equal(new URL(other.url()).hash, "");
    assert.deepEqual((await call(other, "look.get")).result.look, look);
    await other.getByRole("button", { name: "Undo" }).click();
    await untilPictureIs(other, plain);
    assert.deepEqual((await call(other, "look.get")).result.look.settings, still);
    await other.context().close();
});

test("says what is wrong with a link and changes nothing", async () => {
    const page = await openLook();
    const before = (await call(page, "look.get")).result;
    for (const [hash, message] of [["#look=2.AAAA", "form 2"], ["#look=1.%%", "not complete"], ["#look=1.AAAA", "not complete"]]) {
        await page.evaluate((hash) => (location.hash = hash), hash);
        await untilStatus(page, message);
    }
    assert.deepEqual((await call(page, "look.get")).result, before);
    await page.context().close();
});

test("saves the settings as a property list and takes it back", async () => {
    const page = await openLook();
    await call(page, "settings.set", { values: { timeFormat: "<H> & mm", enableDate: false, sizeTimeLabel: 77 } });
    await page.waitForFunction(() => document.querySelector("[data-key=timeFormat]").value.startsWith("<H>"));
    const { name, bytes } = await download(page, "#save-settings");
    assert.equal(name, "com.ostrel.lyrprefs.plist");
    await call(page, "look.set", { look: { lyrlook: 1, settings: {}, colours: {} } });
    await drop(page, name, bytes);
    await untilStatus(page, "Taken over");
    assert.deepEqual((await call(page, "settings.get")).result.values,
        { timeFormat: "<H> & mm", enableDate: false, sizeTimeLabel: 77 });
    const binary = execFileSync("plistutil", ["-f", "bin", "-i", join(root, settingsFile), "-o", "-"]);
    await call(page, "look.set", { look: { lyrlook: 1, settings: {}, colours: {} } });
    await drop(page, "binary.plist", binary);
    await page.waitForFunction(() => document.querySelector("[data-key=timeFormat]").value.startsWith("<H>"));
    await page.context().close();
});

test("refuses what is no settings file, and what is too large", async () => {
    const page = await openLook();
    const before = preview.read(settingsFile);
    await drop(page, "broken.plist", "<plist><dict><key>enab");
    await untilStatus(page, "broken.plist cannot be used");
    await drop(page, "list.plist", '<plist version="1.0"><array/></plist>');
    await untilStatus(page, "list.plist cannot be used");
    await drop(page, "notes.txt", "hello");
    await untilStatus(page, "notes.txt is no settings file");
    await drop(page, "large.json", " ".repeat((1 << 20) + 1));
    await untilStatus(page, "large.json is too large");
    assert.equal(preview.read(settingsFile), before);
    await page.context().close();
});

test("takes a look from a file and says which font is missing", async () => {
    const page = await openLook();
    const look = { lyrlook: 1, settings: { alignTime: "1" }, colours: { colourDate: "#112233:1.00" }, fonts: ["NoSuchFont"] };
    await drop(page, "mine.lyrlook", JSON.stringify(look));
    await untilStatus(page, "mine.lyrlook");
    assert.match(preview.read(coloursFile), /#112233:1.00/);
    await drop(page, "newer.lyrlook", JSON.stringify({ ...look, lyrlook: 2 }));
    await untilStatus(page, "version 2");
    await page.context().close();
});

test("puts a font into the user's folder and restarts the home screen", async () => {
    const page = await openLook();
    const font = readFileSync("/usr/share/fonts/truetype/lato/Lato-Bold.ttf");
    await drop(page, "Lato-Bold.ttf", font);
    await untilStatus(page, "Taken over");
    assert.deepEqual(readFileSync(join(root, fontFolder, "Lato-Bold.ttf")), font);
    assert.equal((await call(page, "phone.info")).result.restarts, 1);
    await page.context().close();
});

test("makes a dropped picture the wallpaper", async () => {
    const page = await openLook();
    const before = await picture(page);
    const png = await page.evaluate(async () => {
        const canvas = new OffscreenCanvas(375, 812);
        const context = canvas.getContext("2d");
        context.fillStyle = "#400060";
        context.fillRect(0, 0, 375, 812);
        return [...new Uint8Array(await (await canvas.convertToBlob()).arrayBuffer())];
    });
    await page.evaluate((bytes) => {
        const transfer = new DataTransfer();
        transfer.items.add(new File([new Uint8Array(bytes)], "plain.png", { type: "image/png" }));
        document.body.dispatchEvent(new DragEvent("drop", { dataTransfer: transfer, bubbles: true, cancelable: true }));
    }, png);
    await untilStatus(page, "Taken over");
    await untilPictureDiffers(page, before);
    assert.deepEqual(readFileSync(join(root, wallpaperFile)).subarray(0, 3), Buffer.from([0xFF, 0xD8, 0xFF]));
    await page.waitForFunction(() => {
        const [red, green, blue] = document.getElementById("screen").getContext("2d").getImageData(20, 300, 1, 1).data;
        return Math.abs(red - 0x40) < 12 && green < 12 && Math.abs(blue - 0x60) < 12;
    });
    await page.context().close();
});
