// The state that the page's phone starts with, and the pictures of its weather.
import assert from "node:assert/strict";
import { copyFileSync, existsSync } from "node:fs";
import { basename, join } from "node:path";
import { test } from "node:test";
import { call, openPage, Preview, sharePhoneAndBrowser, until } from "./support.mjs";

let root, preview, browser;
sharePhoneAndBrowser((shared) => ({ root, preview, browser } = shared));

const weatherInUse = {
    temperature: "21°", high: "24°", low: "15°", conditions: "Partly Cloudy", location: "Haifa", sunrise: "6:12", sunset: "16:41",
};

async function openPhone() {
    const page = await openPage(browser, preview.address);
    await page.click("#tab-phone");
    return page;
}

// What the preview tells everybody who connects.
function device(page) {
    return page.evaluate(() => new Promise((resolve, reject) => {
        const socket = new WebSocket(`ws://${location.host}/control`);
        socket.onmessage = ({ data }) => {
            const { method, params } = JSON.parse(data);
            if (method !== "preview.standing")
                return;
            resolve(params.device);
            socket.close();
        };
        socket.onclose = () => reject(new Error("the preview told nothing"));
    }));
}

function untilGlyphIs(page, name) {
    const nameOf = ({ weather }) => (weather.image ? basename(weather.image, ".png") : null);
    return until(page, () => device(page), (now) => nameOf(now) === name);
}

async function type(page, label, text) {
    const panel = page.locator("#panel-phone");
    const field = label === "Conditions" ? panel.locator("[list=conditions]") : panel.getByLabel(label, { exact: true });
    await field.fill(text);
    await field.blur();
}

function hasWeather(page) {
    return page.getByRole("switch", { name: "Weather" }).isChecked();
}

test("starts with a phone in use, and its controls say so", async () => {
    const page = await openPhone();
    const { weather: { image, ...weather }, battery, alarm, events } = await device(page);
    assert.equal(basename(image), "partly-cloudy-night.png");
    assert.deepEqual(weather, weatherInUse);
    assert.ok(Math.abs(battery.level - 0.87) < 1e-6);
    assert.equal(battery.state, "unplugged");
    assert.equal(alarm, "2020-11-16T06:30:00");
    assert.deepEqual(events, [{ title: "Dentist", start: "2020-11-16T09:30:00", allDay: false }]);
    const panel = page.locator("#panel-phone");
    assert.equal(await panel.getByLabel("Level").inputValue(), "0.87");
    assert.equal(await hasWeather(page), true);
    const texts = await panel.locator(".group").filter({ has: page.locator("#conditions") }).locator("input[type=text]")
        .evaluateAll((fields) => fields.map((field) => field.value));
    assert.deepEqual(texts, Object.values(weatherInUse));
    assert.equal(await panel.locator("input[type=datetime-local]").first().inputValue(), "2020-11-16T06:30");
    assert.match(await panel.locator(".events li").textContent(), /^Dentist, 2020-11-16 09:30/);
    assert.deepEqual(page.complaints, []);
    await page.context().close();
});

test("shows a picture for each of the conditions that the page offers", async () => {
    const page = await openPhone();
    const offered = await page.$$eval("#conditions option", (options) => options.map((option) => option.value));
    assert.ok(offered.length >= 12);
    const seen = new Set();
    for (const conditions of offered) {
        await type(page, "Conditions", conditions);
        const { weather } = await until(page, () => device(page), (now) => now.weather.conditions === conditions);
        assert.ok(existsSync(weather.image), conditions);
        seen.add(weather.image);
    }
    assert.equal(seen.size, offered.length);
    await type(page, "Conditions", "Frogs");
    await untilGlyphIs(page, null);
    await page.context().close();
});

test("shows the sun by day and the moon by night", async () => {
    const page = await openPhone();
    await type(page, "Conditions", "Clear");
    await untilGlyphIs(page, "clear-night");
    await type(page, "Time", "2020-11-15T12:00");
    await untilGlyphIs(page, "clear");
    await type(page, "Sunset", "11:30");
    await untilGlyphIs(page, "clear-night");
    await page.context().close();
});

test("leaves a picture of one's own alone, and invents none for the protocol", async () => {
    const page = await openPhone();
    const { weather: { image } } = (await call(page, "weather.glyph", { weather: { conditions: "Snow" } })).result;
    const own = join(root, "own.png");
    copyFileSync(image, own);
    await call(page, "device.set", { weather: { ...weatherInUse, image: own } });
    await page.waitForFunction(() => document.querySelector("[list=conditions]").value === "Partly Cloudy");
    await type(page, "Conditions", "Rain");
    const { weather } = await until(page, () => device(page), (now) => now.weather.conditions === "Rain");
    assert.equal(weather.image, own);
    await call(page, "device.set", { weather: weatherInUse });
    assert.equal((await device(page)).weather.image, undefined);
    const { error } = await call(page, "weather.glyph", { weather: 7 });
    assert.match(error.message, /parameter "weather" takes/);
    await page.context().close();
});

test("starts a bare phone where it is asked for", async () => {
    await preview.stop();
    preview.process = (await Preview.start(root, ["--bare", "--port", String(preview.port)])).process;
    const page = await openPhone();
    const { weather, battery, alarm, events } = await device(page);
    assert.deepEqual({ weather, level: battery.level, alarm, events }, { weather: null, level: 1, alarm: null, events: [] });
    assert.equal(await hasWeather(page), false);
    await page.context().close();
});
