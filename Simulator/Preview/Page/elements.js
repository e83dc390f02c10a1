// Elements of the page and the rows that panels are made of.

// element("button", { type: "button", onclick: run }, "Text", otherElement)
export function element(name, properties = {}, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(properties)) {
        if (key in made)
            made[key] = value;
        else
            made.setAttribute(key, value);
    }
    made.append(...children.filter((child) => child !== null && child !== undefined));
    return made;
}

let lastId = 0;

// A control with its label; `note` stands beside the control.
export function row(label, control, note = null) {
    control.id ||= `control-${++lastId}`;
    return element("div", { className: "row" }, element("label", { htmlFor: control.id }, label),
        element("span", { className: "control" }, note, control));
}

export function buttonRow(label, run, properties = {}) {
    return element("div", { className: "row" }, element("button", { type: "button", onclick: run, ...properties }, label));
}

// Rows that belong together, under a heading if they have one. What the first row says is said once.
export function group(title, rows, footer = null) {
    const isSaid = rows[0]?.querySelector("label")?.textContent === title;
    const heading = title && !isSaid ? element("h3", {}, title) : null;
    return element("section", { className: "group" }, heading, element("div", { className: "rows" }, ...rows),
        footer ? element("p", { className: "footer" }, footer) : null);
}

export function toggle(properties) {
    return element("input", { type: "checkbox", role: "switch", ...properties });
}

// Choices are pairs of a value and what it is called.
export function choice(choices, properties) {
    const select = element("select", {}, ...choices.map(([value, title]) => element("option", { value }, title)));
    return Object.assign(select, properties);
}

// A slider with its number beside it.
export function slider(label, { min, max, step, ...properties }) {
    const number = element("output", {});
    const control = element("input", { type: "range", min, max, step, ...properties });
    control.show = (value) => {
        control.value = value;
        number.value = String(value);
    };
    control.addEventListener("input", () => (number.value = control.value));
    return { control, row: row(label, control, number) };
}
