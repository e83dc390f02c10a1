// The panels of the settings, made from the phone's own settings pages: a page is a panel, a cell is a row.
import { buttonRow, choice, element, group, row, slider, toggle } from "./elements.js";

export const bundle = "/Library/PreferenceBundles/LYRPrefs.bundle/";
const firstPage = "Root";

// The pages in the order in which the first one links to them.
export async function loadPages(connection) {
    const load = async (name) => ({ name, ...(await connection.call("file.read", { path: `${bundle}${name}.plist` })).plist });
    const first = await load(firstPage);
    const linked = first.items.filter(isPageLink).map((cell) => load(cell.id));
    return [first, ...await Promise.all(linked)];
}

function isPageLink(cell) {
    return cell.cell === "PSLinkCell" && Boolean(cell.id);
}

// "#RRGGBB", "#RGB" or one of them with ":opacity".
export function parseColour(text) {
    const found = /^#([0-9a-f]{3}|[0-9a-f]{6})(?::([0-9.]+))?$/i.exec(text ?? "");
    if (!found)
        return null;
    const digits = found[1].length === 3 ? [...found[1]].map((digit) => digit + digit).join("") : found[1];
    const opacity = found[2] === undefined ? 1 : Math.min(Math.max(Number(found[2]) || 0, 0), 1);
    return { rgb: `#${digits.toLowerCase()}`, opacity };
}

export class SettingsPanels {
    #updates = [];

    constructor({ store, ofPage, post, report, openPage }) {
        Object.assign(this, { store, ofPage, post, report, openPage });
        store.addEventListener("stored", () => this.update());
    }

    update() {
        for (const update of this.#updates)
            update();
    }

    panel(page) {
        const groups = [];
        for (const cell of page.items) {
            if (cell.cell === "PSGroupCell" || groups.length === 0)
                groups.push({ title: "", footer: "", rows: [] });
            const last = groups[groups.length - 1];
            if (cell.cell === "PSGroupCell")
                Object.assign(last, { title: this.#title(cell.label), footer: this.#title(cell.footerText) });
            else
                last.rows.push(...this.#rows(cell));
        }
        return groups.map(({ title, footer, rows }) => group(title, rows, footer));
    }

    #title(key) {
        return key ? this.ofPage(key) : "";
    }

    #rows(cell) {
        const makers = {
            PSSwitchCell: () => [this.#switch(cell)],
            PSEditTextCell: () => [this.#textField(cell)],
            PSSliderCell: () => [this.#slider(cell)],
            PSLinkListCell: () => [this.#list(cell)],
            PSLinkCell: () => (cell.libsparkcolourpicker ? this.#colour(cell) : [this.#pageLink(cell)]),
            PSButtonCell: () => [this.#button(cell)],
        };
        return makers[cell.cell]?.() ?? [];
    }

    // A control shows what is stored, or the default, unless a hand is at it.
    #follow(control, read) {
        this.#updates.push(() => {
            if (document.activeElement !== control || !control.isHeld)
                read();
        });
        read();
    }

    #stored(cell) {
        return this.store.get("settings", cell.key) ?? cell.default;
    }

    #save(cell, value) {
        this.store.set("settings", cell.key, value);
    }

    #switch(cell) {
        const control = toggle({ onchange: () => this.#save(cell, control.checked) });
        control.dataset.key = cell.key;
        this.#follow(control, () => (control.checked = Number(this.#stored(cell)) > 0 || this.#stored(cell) === true));
        return row(this.#title(cell.label), control);
    }

    #textField(cell) {
        const control = element("input", { type: "text", autocomplete: "off", spellcheck: false, placeholder: cell.default });
        control.dataset.key = cell.key;
        control.oninput = () => this.#save(cell, control.value);
        control.onfocus = () => (control.isHeld = true);
        control.onblur = () => (control.isHeld = false);
        this.#follow(control, () => (control.value = String(this.#stored(cell))));
        return row(this.#title(cell.label), control);
    }

    #slider(cell) {
        const step = cell.max - cell.min > 10 ? 1 : 0.01;
        const made = slider(this.#title(cell.label), { min: cell.min, max: cell.max, step });
        const { control } = made;
        control.dataset.key = cell.key;
        control.onpointerdown = () => (control.isHeld = true);
        control.onpointerup = () => (control.isHeld = false);
        control.addEventListener("input", () => this.#save(cell, control.value));
        this.#follow(control, () => control.show(Number.parseFloat(this.#stored(cell)) || 0));
        return made.row;
    }

    #list(cell) {
        const choices = cell.validValues.map((value, index) => [value, this.ofPage(cell.validTitles[index], value)]);
        const control = choice(choices, { onchange: () => this.#save(cell, control.value) });
        control.dataset.key = cell.key;
        this.#follow(control, () => (control.value = String(this.#stored(cell))));
        return row(this.#title(cell.label), control);
    }

    #colour(cell) {
        const { key, fallback } = cell.libsparkcolourpicker;
        const label = this.#title(cell.label);
        const colour = element("input", { type: "color" });
        const opacity = slider(`${label}: ${this.ofPage("opacity")}`, { min: 0, max: 1, step: 0.01 });
        colour.dataset.key = key;
        opacity.control.dataset.opacityOf = key;
        const save = () => this.store.set("colours", key,
            `${colour.value.toUpperCase()}:${Number(opacity.control.value).toFixed(2)}`);
        colour.oninput = save;
        opacity.control.addEventListener("input", save);
        this.#follow(colour, () => {
            const stored = parseColour(this.store.get("colours", key)) ?? parseColour(fallback);
            colour.value = stored.rgb;
            opacity.control.show(stored.opacity);
        });
        return [row(label, colour), opacity.row];
    }

    #pageLink(cell) {
        return buttonRow(this.#title(cell.label), () => this.openPage(cell.id), { className: "link" });
    }

    #button(cell) {
        return buttonRow(this.#title(cell.label), () =>
            this.post(cell.PostNotification).catch((error) => this.report(error.message)));
    }
}
