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
    <message id="UI_TABLE_MULTIPLE_EDITBOX_ADD">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_SUBTRACT">
        <source>Subtract</source>
        <translation>Subtract</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_MULTIPLY">
        <source>Multiply</source>
        <translation>Multiply</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_DIVIDE">
        <source>Divide</source>
        <translation>Divide</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_ROUND">
        <source>Round to</source>
        <translation>Round to</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_REPLACE">
        <source>Replace with</source>
        <translation>Replace with</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_SEARCH">
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_SEARCH_REPORT_NOMATCH">
        <source>No match</source>
        <translation>No match</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_SEARCH_REPORT_MATCH">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="UI_COLOR_ORVO_BURGUNDY">
        <source>Burgundy</source>
        <translation>Burgundy</translation>
    </message>
    <message id="UI_COLOR_ORVO_RED">
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message id="UI_COLOR_ORVO_ORANGE">
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message id="UI_COLOR_ORVO_YELLOW">
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message id="UI_COLOR_ORVO_GREEN">
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message id="UI_COLOR_ORVO_SEAFOAM">
        <source>Seafoam</source>
        <translation>Seafoam</translation>
    </message>
    <message id="UI_COLOR_ORVO_DARK_BLUE">
        <source>Dark blue</source>
        <translation>Dark blue</translation>
    </message>
    <message id="UI_COLOR_ORVO_GREY">
        <source>Grey</source>
        <translation>Grey</translation>
    </message>
    <message id="UI_COLOR_WHITE">
        <source>White</source>
        <translation>White</translation>
    </message>
    <message id="UI_COLOR_BLACK">
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message id="UI_COLOR_BROWN">
        <source>Brown</source>
        <translation>Brown</translation>
    </message>
    <message id="UI_COLOR_YELLOW">
        <source>Light yellow</source>
        <translation>Light yellow</translation>
    </message>
    <message id="UI_COLOR_DARK_GREEN">
        <source>Dark green</source>
        <translation>Dark green</translation>
    </message>
    <message id="UI_COLOR_GREEN">
        <source>Light green</source>
        <translation>Light green</translation>
    </message>
    <message id="UI_COLOR_BLUE">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="UI_COLOR_AQUAMARINE">
        <source>Aquamarine</source>
        <translation>Aquamarine</translation>
    </message>
    <message id="UI_COLOR_PURPLE">
        <source>Purple</source>
        <translation>Purple</translation>
    </message>
    <message id="UI_COLOR_PINK">
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
</context>
</TS>
