.pragma library

// Small helpers shared by the component library's documents.

function isEmpty(text) {
    return text === undefined || text === null || String(text).length === 0
}

// The text of lcid from the Strings singleton, or fallback when lcid is empty.
function textOr(strings, lcid, fallback) {
    return isEmpty(lcid) ? fallback : strings.text(lcid)
}

function formatNumber(value, decimals) {
    if (typeof value !== "number" || !isFinite(value))
        return ""
    return Number(value.toFixed(decimals)).toString()
}
