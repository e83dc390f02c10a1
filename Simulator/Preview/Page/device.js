// The panel of the phone's state: power, weather, alarm, events, time and place, appearance, timer.
import { buttonRow, choice, element, group, row, slider, toggle } from "./elements.js";
import { restart } from "./restart.js";

const weatherTexts = [
    ["temperature", "itemTemperature", "21°"], ["high", "high", "24°"], ["low", "low", "15°"],
    ["conditions", "itemCondition", "Partly Cloudy"], ["location", "itemLocation", "Haifa"],
    ["sunrise", "sunrise", "6:12"], ["sunset", "sunset", "16:41"],
];
// Those that the phone has pictures of; any other text may be typed.
const conditions = ["Clear", "Mostly Clear", "Partly Cloudy", "Cloudy", "Overcast", "Fog", "Drizzle", "Rain", "Showers",
    "Thunderstorms", "Sleet", "Snow", "Hail", "Windy"];
const screens = [[320, 568, 2], [375, 667, 2], [375, 812, 3], [390, 844, 3], [414, 896, 2], [428, 926, 3]];
const locales = ["ar_EG", "de_DE", "en_GB", "en_US", "es_ES", "fr_FR", "he_IL", "it_IT", "ja_JP", "pt_BR", "ru_RU",
    "zh_CN", "zh_TW"];
const timeZones = ["UTC", "America/Los_Angeles", "America/New_York", "America/Sao_Paulo", "Asia/Jerusalem",
    "Asia/Kolkata", "Asia/Shanghai", "Asia/Tokyo", "Australia/Sydney", "Europe/Berlin", "Europe/London"];

function called(locale, texts, type) {
    try {
        return new Intl.DisplayNames([texts.language], { type }).of(locale.replace("_", "-"));
    } catch {
        return locale;
    }
}

// "2020-11-15T21:41" as the field has it, with the seconds that the phone wants.
function withSeconds(time) {
    return time.length === 16 ? `${time}:00` : time;
}

export class DevicePanel {
    #device = null;
    #updates = [];

    constructor({ connection, texts, report, screen }) {
        Object.assign(this, { connection, texts, text: texts.of, report, screen });
        connection.addEventListener("preview.standing", ({ detail }) => this.#take(detail));
    }

    groups() {
        return [this.#power(), this.#weather(), this.#alarm(), this.#eventGroup(), this.#surroundings(),
            this.#appearance(), this.#timer()];
    }

    async #call(method, params) {
        try {
            await this.connection.call(method, params);
        } catch (error) {
            this.report(error.message);
        }
    }

    #set(members) {
        return this.#call("device.set", members);
    }

    // With the picture of its conditions at this time.
    async #setWeather(weather) {
        try {
            await this.#set(await this.connection.call("weather.glyph", { weather }));
        } catch (error) {
            this.report(error.message);
        }
    }

    #take(standing) {
        if (!standing.device)
            return;
        this.#device = standing.device;
        for (const update of this.#updates)
            update(standing.device);
    }

    // A field that somebody types in keeps what is in it.
    #follow(control, show) {
        const update = (device) => document.activeElement === control && control.type !== "checkbox" || show(device);
        this.#updates.push(update);
        if (this.#device)
            update(this.#device);
        return control;
    }

    #power() {
        const level = slider(this.text("level"), { min: 0, max: 1, step: 0.01 });
        level.control.addEventListener("change", () => this.#set({ battery: { level: Number(level.control.value) } }));
        this.#follow(level.control, ({ battery }) => level.control.show(Math.round(battery.level * 100) / 100));
        const cable = toggle({ onchange: () => this.#call("phone.charge", { charging: cable.checked }) });
        this.#follow(cable, ({ battery }) => (cable.checked = ["charging", "full"].includes(battery.state)));
        const lowPower = toggle({ onchange: () => this.#set({ battery: { lowPower: lowPower.checked } }) });
        this.#follow(lowPower, ({ battery }) => (lowPower.checked = battery.lowPower));
        return group(this.text("battery"),
            [level.row, row(this.text("cable"), cable), row(this.text("lowPower"), lowPower)]);
    }

    #weather() {
        const fields = weatherTexts.map(([name, label, example]) => {
            const field = element("input", { type: "text", placeholder: example });
            if (name === "conditions")
                field.setAttribute("list", "conditions");
            field.onchange = () => this.#setWeather({ ...this.#device.weather, [name]: field.value });
            this.#follow(field, ({ weather }) => (field.value = weather?.[name] ?? ""));
            return { name, example, row: row(this.text(label), field) };
        });
        const present = toggle({});
        present.onchange = () => this.#setWeather(
            present.checked ? Object.fromEntries(fields.map(({ name, example }) => [name, example])) : null);
        this.#follow(present, ({ weather }) => {
            present.checked = weather !== null;
            for (const field of fields)
                field.row.hidden = weather === null;
        });
        const known = element("datalist", { id: "conditions" },
            ...conditions.map((value) => element("option", { value })));
        return group(this.text("weather"),
            [row(this.text("weather"), present), ...fields.map((field) => field.row), known]);
    }

    #alarm() {
        const alarm = element("input", { type: "datetime-local" });
        alarm.onchange = () => this.#set({ alarm: alarm.value ? withSeconds(alarm.value) : null });
        this.#follow(alarm, (device) => (alarm.value = device.alarm?.slice(0, 16) ?? ""));
        const clear = buttonRow(this.text("remove", this.text("itemAlarm")), () => this.#set({ alarm: null }));
        this.#updates.push((device) => (clear.hidden = device.alarm === null));
        return group(this.text("itemAlarm"), [row(this.text("itemAlarm"), alarm), clear]);
    }

    #eventGroup() {
        const title = element("input", { type: "text" });
        const start = element("input", { type: "datetime-local" });
        const allDay = toggle({});
        const add = () => {
            if (!title.value || !start.value)
                return (title.value ? start : title).focus();
            const event = { title: title.value, start: withSeconds(start.value), allDay: allDay.checked };
            title.value = "";
            this.#set({ events: [...this.#device.events, event] });
        };
        const made = group(this.text("events"), [row(this.text("eventTitle"), title), row(this.text("start"), start),
            row(this.text("allDay"), allDay), buttonRow(this.text("addEvent"), add)]);
        const list = element("ul", { className: "events" });
        made.querySelector(".rows").prepend(list);
        this.#updates.push(({ events }) => list.replaceChildren(...events.map((event, index) => this.#event(event, index))));
        return made;
    }

    #event(event, index) {
        const remove = () => this.#set({ events: this.#device.events.filter((_, other) => other !== index) });
        return element("li", { className: "row" }, element("span", {}, `${event.title}, ${event.start.slice(0, 16).replace("T", " ")}`),
            element("button", { type: "button", onclick: remove, "aria-label": this.text("remove", event.title) }, "×"));
    }

    #choice(label, member, values, name) {
        const control = choice(values.map((value) => [value, name(value)]), {});
        control.onchange = () => this.#set({ [member]: member === "languages" ? [control.value] : control.value });
        this.#follow(control, (device) => {
            const [value] = [device[member]].flat();
            if (![...control.options].some((option) => option.value === value))
                control.append(element("option", { value }, value));
            control.value = value;
        });
        return row(this.text(label), control);
    }

    #surroundings() {
        const time = element("input", { type: "datetime-local", step: 1 });
        time.onfocus = () => this.connection.call("phone.info").then(
            (info) => (time.value = info.time ?? ""), (error) => this.report(error.message));
        time.onchange = async () => {
            if (!time.value)
                return;
            await this.#call("clock.set", { time: withSeconds(time.value) });
            await this.#setWeather(this.#device.weather);
        };
        const name = (locale) => called(locale, this.texts, "language");
        const languages = this.texts.languages.map(({ identifier }) => identifier);
        return group(this.text("surroundings"), [row(this.text("timeNow"), time),
            this.#choice("timeZone", "timeZone", timeZones, (zone) => zone.replaceAll("_", " ")),
            this.#choice("locale", "locale", locales, name), this.#choice("language", "languages", languages, name)]);
    }

    #appearance() {
        const name = (style) => this.text(style);
        const size = choice(screens.map((screen) => [screen.join(), `${screen[0]} × ${screen[1]} @ ${screen[2]}`]), {});
        size.onchange = () => {
            const [width, height, scale] = size.value.split(",").map(Number);
            restart(this.connection, this.#device, { width, height, scale }).catch((error) => this.report(error.message));
        };
        const landscape = toggle({ onchange: () => this.#call("phone.rotate", { landscape: landscape.checked }) });
        const show = () => {
            const { width, height, scale } = this.screen.size;
            if (document.activeElement !== size)
                size.value = [Math.min(width, height), Math.max(width, height), scale].join();
            landscape.checked = width > height;
        };
        show();
        this.screen.canvas.addEventListener("frame", show);
        return group(this.text("appearance"), [this.#choice("appearance", "style", ["light", "dark"], name),
            row(this.text("screenSize"), size), row(this.text("landscape"), landscape)]);
    }

    #timer() {
        const seconds = element("input", { type: "number", min: 1, max: 86400, value: 90 });
        return group(this.text("timer"), [row(this.text("timer"), seconds),
            buttonRow(this.text("startTimer"), () => this.#call("phone.timer", { seconds: Number(seconds.value) || 0 })),
            buttonRow(this.text("stopTimer"), () => this.#call("phone.timer", { seconds: 0 }))]);
    }
}
