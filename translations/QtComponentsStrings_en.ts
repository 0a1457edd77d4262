<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="UI_APP_TITLE">
        <source>QtComponents demo</source>
        <translation>QtComponents – structural model</translation>
    </message>
    <message id="UI_APP_STATUS_READY">
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message id="UI_APP_PAGE_OVERVIEW">
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message id="UI_APP_OVERVIEW_TEXT">
        <source>Components</source>
        <translation>Tables, numeric inputs, the marking menu, the properties panel and keyboard shortcuts of the structural model.</translation>
    </message>
    <message id="UI_INLINE_CALC_ERROR">
        <source>Invalid expression</source>
        <translation>Invalid expression</translation>
    </message>
    <message id="UI_NUMERIC_INPUT_NOT_WHOLE">
        <source>%1 is not a whole number</source>
        <translation>%1 is not a whole number</translation>
    </message>
    <message id="UI_NUMERIC_INPUT_OUT_OF_RANGE">
        <source>%1 is outside %2 … %3</source>
        <translation>%1 is outside %2 … %3</translation>
    </message>
    <message id="UI_APP_PAGE_VALUE_ENTRY">
        <source>Value entry</source>
        <translation>Value entry</translation>
    </message>
    <message id="UI_VALUE_ENTRY_INPUTS">
        <source>Numeric inputs</source>
        <translation>Numeric inputs</translation>
    </message>
    <message id="UI_VALUE_ENTRY_HINT">
        <source>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1,5; 2). Units are converted to SI base units.</source>
        <translation>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1,5; 2). Units are converted to SI base units.</translation>
    </message>
    <message id="UI_VALUE_ENTRY_LENGTH">
        <source>Span length</source>
        <translation>Span length</translation>
    </message>
    <message id="UI_VALUE_ENTRY_ANGLE">
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message id="UI_VALUE_ENTRY_COUNT">
        <source>Number of bolts (1 to 50)</source>
        <translation>Number of bolts (1 to 50)</translation>
    </message>
    <message id="UI_VALUE_ENTRY_STORED">
        <source>Stored value</source>
        <translation>Stored value</translation>
    </message>
    <message id="UI_VALUE_ENTRY_NONE">
        <source>none</source>
        <translation>none</translation>
    </message>
    <message id="UI_VALUE_ENTRY_COORDINATES">
        <source>Coordinates (several values)</source>
        <translation>Coordinates (several values)</translation>
    </message>
    <message id="UI_VALUE_ENTRY_COORDINATES_HINT">
        <source>Values separated by blanks or ";", each one an expression</source>
        <translation>Values separated by blanks or ";", each one an expression</translation>
    </message>
    <message id="UI_VALUE_ENTRY_EXAMPLES">
        <source>Expressions evaluated by the calculator</source>
        <translation>Expressions evaluated by the calculator</translation>
    </message>
</context>
</TS>
