.pragma library

// Paths as addresses and as text. Names may hold nearly anything, also what has a meaning elsewhere.

const systemIsWindows = Qt.platform.os === "windows";
const lastSeparator = systemIsWindows ? /[\/\\](?=[^\/\\]*$)/ : /\/(?=[^\/]*$)/;
const lineBreaks = /\r\n|[\n\v\f\r\u0085\u2028\u2029]/g;
// Other control characters, and those that turn the direction of the text after them.
const unprintable = /[\u0000-\u001f\u007f-\u009f\u200e\u200f\u202a-\u202e\u2066-\u2069]/g;

/// A folder's address for the system's file browser.
function ofFolder(path) {
    const slashed = systemIsWindows ? path.replace(/\\/g, "/") : path;
    const parts = slashed.replace(/^\/+/, "").split("/");
    const isShare = systemIsWindows && slashed.startsWith("//"); // its first part names a server
    return (isShare ? "file://" : "file:///") + parts.map((part, index) => index === 0 && /^[A-Za-z]:$/.test(part)
                                                   ? part : encodeURIComponent(part)).join("/");
}

function folderOf(path) {
    const end = path.search(lastSeparator);
    return end < 0 ? path : path.slice(0, end);
}

function nameOf(path) {
    return path.slice(path.search(lastSeparator) + 1);
}

/// A path, or a sentence with one, on one line and with nothing invisible in it.
function shown(text) {
    return text.replace(lineBreaks, "↵").replace(unprintable, "\ufffd");
}

/// What `typed` means in place of `path`, which was shown: its line breaks are still its own.
function meant(typed, path) {
    return shown(path) === typed ? path : /\n/.test(path) ? typed.replace(/↵/g, "\n") : typed;
}
