.pragma library

// Small helpers shared by the component library's documents. Numbers, units and their texts are
// not here: the host's NumberFormat and calculator own them.

function isEmpty(text) {
    return text === undefined || text === null || String(text).length === 0
}
