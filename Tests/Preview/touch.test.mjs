// Fingers on the page's phone.
import assert from "node:assert/strict";
import { test } from "node:test";
import { call, openPage, picture, sharePhoneAndBrowser, untilPictureDiffers, untilShown } from "./support.mjs";

let preview, browser;
sharePhoneAndBrowser((shared) => ({ preview, browser } = shared));

function untilEditorIsOpen(page) {
    return untilShown(page, "_segmentedControl");
}

test("opens the editor when the mouse is held on the lock screen", async () => {
    const page = await openPage(browser, preview.address);
    const before = await picture(page);
    const { x, y, width, height } = await page.locator("#screen").boundingBox();
    await page.mouse.move(x + width / 2, y + height / 2);
    await page.mouse.down();
    await untilEditorIsOpen(page);
    await page.mouse.up();
    await untilPictureDiffers(page, before);
    await call(page, "phone.lock");
    await call(page, "phone.wake");
    await page.context().close();
});

test("opens the editor by keyboard alone", async () => {
    const page = await openPage(browser, preview.address);
    await page.locator("#screen").focus();
    await page.keyboard.press("ArrowDown");
    await page.keyboard.down("Enter");
    await untilEditorIsOpen(page);
    await page.keyboard.up("Enter");
    await call(page, "phone.lock");
    await call(page, "phone.wake");
    await page.context().close();
});

test("opens the editor with the button for touching and holding", async () => {
    const page = await openPage(browser, preview.address);
    await page.click("#hand-touchAndHold");
    await untilEditorIsOpen(page);
    assert.equal(await page.textContent("#status"), "Connected");
    await page.context().close();
});

test("opens the editor by a finger on a touch screen", async () => {
    const page = await openPage(browser, preview.address, { hasTouch: true });
    await call(page, "phone.lock");
    await call(page, "phone.wake");
    const { x, y, width, height } = await page.locator("#screen").boundingBox();
    const session = await page.context().newCDPSession(page);
    const touchPoints = [{ x: x + width / 2, y: y + height / 2 }];
    await session.send("Input.dispatchTouchEvent", { type: "touchStart", touchPoints });
    await untilEditorIsOpen(page);
    await session.send("Input.dispatchTouchEvent", { type: "touchEnd", touchPoints: [] });
    await page.context().close();
});
