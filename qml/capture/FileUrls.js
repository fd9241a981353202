.pragma library

/// A folder's address for the system's file browser. Names may hold what has a meaning in addresses.
function ofFolder(path) {
    const parts = path.replace(/\\/g, "/").replace(/^\/+/, "").split("/");
    return "file:///" + parts.map((part, index) => index === 0 && /^[A-Za-z]:$/.test(part)
                                                   ? part : encodeURIComponent(part)).join("/");
}

function folderOf(path) {
    return path.replace(/[\/\\][^\/\\]*$/, "");
}

function nameOf(path) {
    return path.replace(/^.*[\/\\]/, "");
}
