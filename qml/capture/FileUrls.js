.pragma library

/// A folder's address for the system's file browser. Names may hold what has a meaning in addresses.
function ofFolder(path) {
    const slashed = path.replace(/\\/g, "/");
    const parts = slashed.replace(/^\/+/, "").split("/");
    const isShare = slashed.startsWith("//"); // its first part is the name of a server
    return (isShare ? "file://" : "file:///") + parts.map((part, index) => index === 0 && /^[A-Za-z]:$/.test(part)
                                                   ? part : encodeURIComponent(part)).join("/");
}

function folderOf(path) {
    return path.replace(/[\/\\][^\/\\]*$/, "");
}

function nameOf(path) {
    return path.replace(/^.*[\/\\]/, "");
}
