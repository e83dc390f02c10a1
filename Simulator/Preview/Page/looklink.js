// A look as the fragment of an address: "#look=1." and the JSON, deflated, in the base 64 of addresses. The number before
// the dot is the version of this form; that of the look is within.

const prefix = "#look=";
const form = "1";
const longestLink = 1 << 16;
const longestLook = 1 << 20;

async function through(stream, bytes, limit) {
    const reader = new Blob([bytes]).stream().pipeThrough(stream).getReader();
    const chunks = [];
    let length = 0;
    for (let part = await reader.read(); !part.done; part = await reader.read()) {
        length += part.value.length;
        if (length > limit)
            throw new Error("too long");
        chunks.push(part.value);
    }
    return new Uint8Array(await new Blob(chunks).arrayBuffer());
}

export async function toLink(look) {
    const bytes = new TextEncoder().encode(JSON.stringify(look));
    const deflated = await through(new CompressionStream("deflate-raw"), bytes, longestLook);
    const text = btoa(String.fromCharCode(...deflated));
    return `${prefix}${form}.${text.replaceAll("+", "-").replaceAll("/", "_").replaceAll("=", "")}`;
}

export async function fromLink(hash) {
    const [version, text = ""] = hash.slice(prefix.length).split(".");
    if (version !== form)
        throw new Error(`form ${version} of a look; this page knows form ${form}`);
    if (text.length > longestLink)
        throw new Error("too long");
    let deflated;
    try {
        deflated = Uint8Array.from(atob(text.replaceAll("-", "+").replaceAll("_", "/")), (c) => c.charCodeAt(0));
    } catch {
        throw new Error("not complete");
    }
    const bytes = await through(new DecompressionStream("deflate-raw"), deflated, longestLook).catch((error) => {
        throw error instanceof TypeError ? new Error("not complete") : error;
    });
    return JSON.parse(new TextDecoder().decode(bytes));
}
