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
    <message id="UI_APP_PAGE_MARKING_MENU">
        <source>Marking menu</source>
        <translation>Marking menu</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_VIEW_TITLE">
        <source>Model view</source>
        <translation>Model view</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_VIEW_HINT">
        <source>Hold the right mouse button over the model view, move towards a section, then onto a command and release. A quick click does not open the menu.</source>
        <translation>Hold the right mouse button over the model view, move towards a section, then onto a command and release. A quick click does not open the menu.</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_LAST_COMMAND">
        <source>Last command</source>
        <translation>Last command</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_NO_COMMAND">
        <source>No command has run yet.</source>
        <translation>No command has run yet.</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_COMMAND_COUNT">
        <source>Commands run: %1</source>
        <translation>Commands run: %1</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_PARAMETERS">
        <source>Parameters: %1</source>
        <translation>Parameters: %1</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_ORIGIN">
        <source>Run from: %1</source>
        <translation>Run from: %1</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_LOCK_MODEL">
        <source>Lock the model</source>
        <translation>Lock the model</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_LOCK_MODEL_HINT">
        <source>Disables the Model and Edit commands</source>
        <translation>Disables the Model and Edit commands: their slices grey out and do not run.</translation>
    </message>
    <message id="UI_APP_MARKING_MENU_HOLDING">
        <source>Secondary button held</source>
        <translation>Secondary button held</translation>
    </message>
    <message id="UI_MARKING_MENU_SECTION_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_MARKING_MENU_SECTION_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_MARKING_MENU_SECTION_VIEW">
        <source>View</source>
        <translation>View</translation>
    </message>
    <message id="UI_MARKING_MENU_SECTION_EDIT">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="UI_COMMAND_NEW_NODE">
        <source>New node</source>
        <translation>New node</translation>
    </message>
    <message id="UI_COMMAND_NEW_MEMBER">
        <source>New member</source>
        <translation>New member</translation>
    </message>
    <message id="UI_COMMAND_NEW_SURFACE">
        <source>New surface</source>
        <translation>New surface</translation>
    </message>
    <message id="UI_COMMAND_NEW_SUPPORT">
        <source>New support</source>
        <translation>New support</translation>
    </message>
    <message id="UI_COMMAND_NEW_HINGE">
        <source>New hinge</source>
        <translation>New hinge</translation>
    </message>
    <message id="UI_COMMAND_NEW_OPENING">
        <source>New opening</source>
        <translation>New opening</translation>
    </message>
    <message id="UI_COMMAND_NODAL_LOAD">
        <source>Nodal load</source>
        <translation>Nodal load</translation>
    </message>
    <message id="UI_COMMAND_MEMBER_LOAD">
        <source>Member load</source>
        <translation>Member load</translation>
    </message>
    <message id="UI_COMMAND_SURFACE_LOAD">
        <source>Surface load</source>
        <translation>Surface load</translation>
    </message>
    <message id="UI_COMMAND_SELF_WEIGHT">
        <source>Self-weight</source>
        <translation>Self-weight</translation>
    </message>
    <message id="UI_COMMAND_NEW_LOAD_CASE">
        <source>New load case</source>
        <translation>New load case</translation>
    </message>
    <message id="UI_COMMAND_LOAD_COMBINATIONS">
        <source>Load combinations</source>
        <translation>Load combinations</translation>
    </message>
    <message id="UI_COMMAND_ZOOM_ALL">
        <source>Zoom all</source>
        <translation>Zoom all</translation>
    </message>
    <message id="UI_COMMAND_ZOOM_WINDOW">
        <source>Zoom window</source>
        <translation>Zoom window</translation>
    </message>
    <message id="UI_COMMAND_VIEW_ISOMETRIC">
        <source>Isometric view</source>
        <translation>Isometric view</translation>
    </message>
    <message id="UI_COMMAND_VIEW_TOP">
        <source>Top view</source>
        <translation>Top view</translation>
    </message>
    <message id="UI_COMMAND_VIEW_FRONT">
        <source>Front view</source>
        <translation>Front view</translation>
    </message>
    <message id="UI_COMMAND_SHOW_RESULTS">
        <source>Show results</source>
        <translation>Show results</translation>
    </message>
    <message id="UI_COMMAND_MOVE">
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message id="UI_COMMAND_COPY">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="UI_COMMAND_ROTATE">
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message id="UI_COMMAND_MIRROR">
        <source>Mirror</source>
        <translation>Mirror</translation>
    </message>
    <message id="UI_COMMAND_DIVIDE_MEMBER">
        <source>Divide member</source>
        <translation>Divide member</translation>
    </message>
    <message id="UI_COMMAND_DELETE">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="UI_COMMAND_UNDO">
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message id="UI_COMMAND_REDO">
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message id="UI_COMMAND_SAVE">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="UI_APP_PAGE_SHORTCUTS">
        <source>Shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message id="UI_APP_STATUS_LAST_COMMAND">
        <source>Last command</source>
        <translation>Last command: %1 (run by %2)</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_LIST_TITLE">
        <source>Commands</source>
        <translation>Commands and their shortcuts</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_EDIT_LABEL">
        <source>Shortcut for</source>
        <translation>Shortcut for %1:</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_EDIT_PLACEHOLDER">
        <source>Example</source>
        <translation>For example Ctrl+Shift+K</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_APPLY">
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_REMOVE">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_INVALID">
        <source>Invalid</source>
        <translation>“%1” is not a key sequence; the shortcut stays as it was.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_STATE_TITLE">
        <source>Shortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_ON">
        <source>On</source>
        <translation>On: press a shortcut anywhere in the application, on any page.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_OFF">
        <source>Off</source>
        <translation>Off while a message box is open.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_OPEN_BOX">
        <source>Open box</source>
        <translation>Open a message box</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_BOX_TITLE">
        <source>Box title</source>
        <translation>Shortcuts are off</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_BOX_TEXT">
        <source>Box text</source>
        <translation>While this message box is open, the application's keyboard shortcuts run nothing. Try one, then close the box and try it again.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_BOX_CLOSE">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_BINDINGS_TITLE">
        <source>Bindings</source>
        <translation>Bound by the hotkey handler</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_LOG_TITLE">
        <source>Commands run</source>
        <translation>Commands run</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_LOG_EMPTY">
        <source>No command</source>
        <translation>No command has run yet. Press one of the shortcuts, for example Ctrl+Shift+N.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_LOG_ENTRY">
        <source>Log entry</source>
        <translation>%1 — by %2</translation>
    </message>
</context>
</TS>
