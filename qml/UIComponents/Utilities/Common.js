.pragma library

// Small helpers shared by the component library's documents.

function isEmpty(text) {
    return text === undefined || text === null || String(text).length === 0
}

function formatNumber(value, decimals) {
    if (typeof value !== "number" || !isFinite(value))
        return ""
    return Number(value.toFixed(decimals)).toString()
}

// SI base units per unit of each symbol a field may show, for the units the host calculator
// knows and the compound units of the structural model. An unknown symbol counts as 1.
var c_unitFactors = {
    "mm": 1e-3, "cm": 1e-2, "dm": 1e-1, "m": 1, "km": 1e3,
    "N": 1, "kN": 1e3, "MN": 1e6,
    "Pa": 1, "kPa": 1e3, "MPa": 1e6, "GPa": 1e9,
    "rad": 1, "deg": Math.PI / 180, "\u00B0": Math.PI / 180,
    "kN/m": 1e3, "kNm": 1e3, "kNm/rad": 1e3, "kN/m\u00B2": 1e3
}

function unitFactor(symbol) {
    var factor = c_unitFactors[symbol]
    return factor === undefined ? 1 : factor
}

// Whether an expression names a unit after a number or a parenthesis ("2*500mm", "(1+2) cm").
function namesUnits(expression) {
    return /[0-9.,)]\s*(mm|cm|dm|km|m|kN|MN|N|kPa|MPa|GPa|Pa|deg|rad|\u00B0)(?![A-Za-z])/.test(expression)
}
