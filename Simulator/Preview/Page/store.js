// The stored settings and colours as the phone has them. Writes go out one after another, the latest value of a key
// only; what was stored elsewhere comes back as an event "stored".

const stores = [
    { name: "settings", get: "settings.get", set: "settings.set" },
    { name: "colours", get: "colours.get", set: "colours.set" },
];

export class Store extends EventTarget {
    values = { settings: {}, colours: {} };
    #waiting = { settings: {}, colours: {} };
    #isWriting = false;
    #isReading = false;
    #isStale = false;

    constructor(connection, report) {
        super();
        this.connection = connection;
        this.report = report;
        connection.addEventListener("open", () => this.read());
        connection.addEventListener("preview.stored", () => this.read());
    }

    // A key that has a value underway shows that.
    get(store, key) {
        return this.#waiting[store][key] ?? this.values[store][key];
    }

    async set(store, key, value) {
        this.#waiting[store][key] = value;
        if (this.#isWriting)
            return;
        this.#isWriting = true;
        for (const { name, set } of stores)
            await this.#write(name, set);
        this.#isWriting = false;
        if (stores.some(({ name }) => Object.keys(this.#waiting[name]).length > 0))
            this.set(store, key, this.#waiting[store][key] ?? this.values[store][key]);
    }

    async #write(name, set) {
        while (Object.keys(this.#waiting[name]).length > 0) {
            const values = this.#waiting[name];
            try {
                await this.connection.call(set, { values });
                Object.assign(this.values[name], values);
            } catch (error) {
                this.report(error.message);
            }
            for (const [key, value] of Object.entries(values))
                if (this.#waiting[name][key] === value)
                    delete this.#waiting[name][key];
        }
    }

    async read() {
        this.#isStale = true;
        if (this.#isReading)
            return;
        this.#isReading = true;
        try {
            while (this.#isStale) {
                this.#isStale = false;
                for (const { name, get } of stores)
                    this.values[name] = (await this.connection.call(get)).values;
            }
            this.dispatchEvent(new Event("stored"));
        } catch (error) {
            this.report(error.message);
        } finally {
            this.#isReading = false;
        }
    }
}
