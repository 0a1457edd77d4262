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
    <message id="UI_APP_PAGE_TABLES">
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message id="UI_DEMO_TABLES_HINT">
        <source>Structural members of the model. Type a filter under a column title (5, &lt;=5, [2;4], S355), click a title to sort, drag its edge to resize or the title itself to move the column. Double-click or start typing to edit; numbers may be expressions such as 2*1,5. The last line (*) adds a member. Ctrl+C and Ctrl+V copy and paste; the box above edits every selected cell at once (+5, *2, ~0.5, &gt;S355, ?IPE).</source>
        <translation>Structural members of the model. Type a filter under a column title (5, &lt;=5, [2;4], S355), click a title to sort, drag its edge to resize or the title itself to move the column. Double-click or start typing to edit; numbers may be expressions such as 2*1,5. The last line (*) adds a member. Ctrl+C and Ctrl+V copy and paste; the box above edits every selected cell at once (+5, *2, ~0.5, &gt;S355, ?IPE).</translation>
    </message>
    <message id="UI_DEMO_TABLES_STATUS">
        <source>%1 of %2 members shown</source>
        <translation>%1 of %2 members shown</translation>
    </message>
    <message id="UI_DEMO_MEMBER_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="UI_DEMO_MEMBER_TYPE">
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message id="UI_DEMO_MEMBER_SECTION">
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message id="UI_DEMO_MEMBER_MATERIAL">
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message id="UI_DEMO_MEMBER_LENGTH">
        <source>Length [m]</source>
        <translation>Length [m]</translation>
    </message>
    <message id="UI_DEMO_MEMBER_COUNT">
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message id="UI_DEMO_MEMBER_ROTATION">
        <source>Rotation [°]</source>
        <translation>Rotation [°]</translation>
    </message>
    <message id="UI_DEMO_MEMBER_FIXED">
        <source>Fixed</source>
        <translation>Fixed</translation>
    </message>
    <message id="UI_DEMO_MEMBER_COLOUR">
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message id="UI_DEMO_MEMBER_UTILISATION">
        <source>Utilisation</source>
        <translation>Utilisation</translation>
    </message>
    <message id="UI_DEMO_MEMBER_COMMENT">
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message id="UI_TABLE_NARROW_COLUMNS">
        <source>Narrow columns</source>
        <translation>Narrow columns</translation>
    </message>
    <message id="UI_TABLE_EXTEND_COLUMNS">
        <source>Widen columns</source>
        <translation>Widen columns</translation>
    </message>
    <message id="UI_TABLE_COLUMNS">
        <source>Columns…</source>
        <translation>Columns…</translation>
    </message>
    <message id="UI_TABLE_SHOW_ALL_COLUMNS">
        <source>Show all columns</source>
        <translation>Show all columns</translation>
    </message>
    <message id="UI_TABLE_CLEAR_FILTERS">
        <source>Clear filters</source>
        <translation>Clear filters</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_ACTION">
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_PLACEHOLDER">
        <source>+5, *2, ~0.5, &gt;S355, ?IPE</source>
        <translation>+5, *2, ~0.5, &gt;S355, ?IPE</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_APPLY">
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_EDITBOX_FIND_NEXT">
        <source>Find next</source>
        <translation>Find next</translation>
    </message>
    <message id="UI_TABLE_MULTIPLE_VALUES">
        <source>Several values</source>
        <translation>Several values</translation>
    </message>
    <message id="UI_TABLE_FILTER_PLACEHOLDER">
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
</TS>
