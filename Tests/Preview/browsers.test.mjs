// Several browsers at one phone, and what they see when the phone or the connection goes.
import assert from "node:assert/strict";
import { afterEach, after, before, beforeEach, test } from "node:test";
import { call, makeRoot, openPage, picture, Preview, removeRoot, startBrowser, untilPictureDiffers, untilPictureIs,
    untilStatus } from "./support.mjs";

let root, preview, browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());
beforeEach(async () => {
    root = makeRoot();
    preview = await Preview.start(root);
});
afterEach(async () => {
    await preview.stop();
    removeRoot(root);
});

test("shows two browsers the same phone and each other's changes", async () => {
    const one = await openPage(browser, preview.address);
    const other = await openPage(browser, preview.address);
    const before = await picture(one);
    await untilPictureIs(other, before);
    await one.click("#tab-subTime");
    await one.locator("[data-key=enableTime]").uncheck();
    await untilPictureDiffers(other, before);
    const changed = await picture(other);
    await untilPictureIs(one, changed);
    await other.waitForFunction(() => !document.querySelector("[data-key=enableTime]").checked);
    await other.click("#tab-subTime");
    await other.locator("[data-key=enableTime]").check();
    await untilPictureIs(one, before);
    await one.waitForFunction(() => document.querySelector("[data-key=enableTime]").checked);
});

test("shows in the panel what was stored elsewhere", async () => {
    const page = await openPage(browser, preview.address);
    await call(page, "settings.set", { values: { timeFormat: "HH:mm", alignTime: 3 } });
    await page.waitForFunction(() => document.querySelector("[data-key=timeFormat]").value === "HH:mm"
        && document.querySelector("[data-key=alignTime]").value === "3");
    await call(page, "device.set", { battery: { level: 0.5, state: "charging" } });
    await page.click("#tab-phone");
    await page.waitForFunction(() => document.querySelector("#panel-phone input[role=switch]").checked);
});

test("finds the phone again when the connection was lost", async () => {
    const page = await openPage(browser, preview.address);
    const { port } = preview;
    const before = await picture(page);
    await preview.stop();
    await untilStatus(page, "Connection lost");
    await page.waitForSelector("#veil:not([hidden])");
    preview = await Preview.start(root, ["--port", String(port)]);
    await untilStatus(page, "Connected");
    await page.waitForSelector("#veil", { state: "hidden" });
    await call(page, "settings.set", { values: { sizeTimeLabel: "140" } });
    await untilPictureDiffers(page, before);
});

test("says that the phone crashed and shows it in safe mode", async () => {
    const page = await openPage(browser, preview.address);
    const before = await picture(page);
    const { result } = await call(page, "phone.info");
    process.kill(result.pid, "SIGSEGV");
    await untilStatus(page, "SIGSEGV");
    await untilStatus(page, "Safe mode");
    await untilPictureDiffers(page, before);
    assert.equal((await call(page, "phone.info")).result.safeMode, true);
    await page.getByRole("button", { name: "Restart the home screen" }).click();
    await untilPictureIs(page, before);
    assert.equal((await call(page, "phone.info")).result.safeMode, false);
});

test("says that the home screen was restarted and goes on", async () => {
    const page = await openPage(browser, preview.address);
    await page.getByRole("button", { name: "Restart the home screen" }).click();
    await untilStatus(page, "restarted");
    const before = await picture(page);
    await call(page, "settings.set", { values: { sizeTimeLabel: "140" } });
    await untilPictureDiffers(page, before);
});

test("sends no second frame before the first was shown", async () => {
    const page = await openPage(browser, preview.address);
    const frames = await page.evaluate(() => new Promise((resolve) => {
        const socket = new WebSocket(`ws://${location.host}/control`);
        socket.binaryType = "arraybuffer";
        let arrived = 0;
        const sent = [];
        const send = (id, method, params = {}) => socket.send(JSON.stringify({ jsonrpc: "2.0", id, method, params }));
        const parts = (buffer) => {
            const length = new DataView(buffer).getUint32(0, true);
            return JSON.parse(new TextDecoder().decode(new Uint8Array(buffer, 4, length))).parts;
        };
        socket.onopen = () => send("follow", "screen.follow");
        socket.onmessage = ({ data }) => {
            if (data instanceof ArrayBuffer) {
                sent.push(parts(data));
                if (sent.length === 1)
                    for (let i = 0; i < 20; ++i)
                        send(i, "settings.set", { values: { sizeTimeLabel: String(60 + i) } });
                else
                    resolve({ sent, before: arrived });
            } else if (JSON.parse(data).id === 19) {
                arrived = sent.length;
                send("shown", "screen.shown");
            }
        };
    }));
    assert.equal(frames.before, 1);
    assert.deepEqual(frames.sent[0], [[0, 0, 375, 812]]);
    assert.ok(frames.sent[1].every(([, , width, height]) => width * height < 375 * 812));
});

test("ends with its phone when it is interrupted", async () => {
    const page = await openPage(browser, preview.address);
    const { result } = await call(page, "phone.info");
    assert.equal(await preview.stop("SIGINT"), "SIGINT");
    assert.throws(() => process.kill(result.pid, 0));
    preview = await Preview.start(root);
});
