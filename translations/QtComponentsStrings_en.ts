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
    <message id="UI_CHOICE_ACTION_IMPOSED">
        <source>Imposed</source>
        <translation>Imposed</translation>
    </message>
    <message id="UI_CHOICE_ACTION_PERMANENT">
        <source>Permanent</source>
        <translation>Permanent</translation>
    </message>
    <message id="UI_CHOICE_ACTION_SNOW">
        <source>Snow</source>
        <translation>Snow</translation>
    </message>
    <message id="UI_CHOICE_ACTION_WIND">
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message id="UI_CHOICE_GLOBAL">
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message id="UI_CHOICE_LOCAL">
        <source>Local</source>
        <translation>Local</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C30">
        <source>C30/37</source>
        <translation>C30/37</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_GL24H">
        <source>GL24h</source>
        <translation>GL24h</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_S235">
        <source>S235</source>
        <translation>S235</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_S275">
        <source>S275</source>
        <translation>S275</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_S355">
        <source>S355</source>
        <translation>S355</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_S460">
        <source>S460</source>
        <translation>S460</translation>
    </message>
    <message id="UI_CHOICE_SECTION_CIRCLE">
        <source>Circle</source>
        <translation>Circle</translation>
    </message>
    <message id="UI_CHOICE_SECTION_I">
        <source>I-section</source>
        <translation>I-section</translation>
    </message>
    <message id="UI_CHOICE_SECTION_RECTANGLE">
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message id="UI_CHOICE_SUPPORT_FIXED">
        <source>Fixed</source>
        <translation>Fixed</translation>
    </message>
    <message id="UI_CHOICE_SUPPORT_FREE">
        <source>Free</source>
        <translation>Free</translation>
    </message>
    <message id="UI_CHOICE_SUPPORT_PINNED">
        <source>Pinned</source>
        <translation>Pinned</translation>
    </message>
    <message id="UI_CHOICE_SUPPORT_ROLLER">
        <source>Roller</source>
        <translation>Roller</translation>
    </message>
    <message id="UI_OBJECT_LOAD_CASE">
        <source>Load case</source>
        <translation>Load case</translation>
    </message>
    <message id="UI_OBJECT_LOAD_CASES">
        <source>Load cases</source>
        <translation>Load cases</translation>
    </message>
    <message id="UI_OBJECT_MEMBER">
        <source>Member</source>
        <translation>Member</translation>
    </message>
    <message id="UI_OBJECT_MEMBERS">
        <source>Members</source>
        <translation>Members</translation>
    </message>
    <message id="UI_OBJECT_NODE">
        <source>Node</source>
        <translation>Node</translation>
    </message>
    <message id="UI_OBJECT_NODES">
        <source>Nodes</source>
        <translation>Nodes</translation>
    </message>
    <message id="UI_PARAMETER_FAVOURABLE">
        <source>Favourable</source>
        <translation>Favourable</translation>
    </message>
    <message id="UI_PARAMETER_PERMANENT">
        <source>Permanent</source>
        <translation>Permanent</translation>
    </message>
    <message id="UI_PARAMETER_VARIABLE">
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message id="UI_PROPERTIES_ACTION_PLACE_ON_GROUND">
        <source>Place on ground</source>
        <translation>Place on ground</translation>
    </message>
    <message id="UI_PROPERTIES_ACTION_RESET_DEFAULTS">
        <source>Reset to defaults</source>
        <translation>Reset to defaults</translation>
    </message>
    <message id="UI_PROPERTIES_ACTION_REVERSE_MEMBER">
        <source>Reverse direction</source>
        <translation>Reverse direction</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_ANALYSIS">
        <source>Analysis</source>
        <translation>Analysis</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_CROSS_SECTION">
        <source>Cross-section</source>
        <translation>Cross-section</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_DISPLAY">
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_GENERAL">
        <source>General</source>
        <translation>General</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_GEOMETRY">
        <source>Geometry</source>
        <translation>Geometry</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_MATERIAL">
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_RELEASES">
        <source>Releases</source>
        <translation>Releases</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_SUPPORT">
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message id="UI_PROPERTIES_ENTITY_ALL">
        <source>All objects</source>
        <translation>All objects</translation>
    </message>
    <message id="UI_PROPERTIES_NO_SELECTION">
        <source>No selection</source>
        <translation>No selection</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_COORDINATES">
        <source>Coordinates</source>
        <translation>Coordinates</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_DIMENSIONS">
        <source>Dimensions</source>
        <translation>Dimensions</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_NODES">
        <source>Nodes</source>
        <translation>Nodes</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_PLATES">
        <source>Plates</source>
        <translation>Plates</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_ROTATIONAL_SPRINGS">
        <source>Rotational springs</source>
        <translation>Rotational springs</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_SELF_WEIGHT">
        <source>Self-weight</source>
        <translation>Self-weight</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_SPRINGS">
        <source>Springs</source>
        <translation>Springs</translation>
    </message>
    <message id="UI_PROPERTIES_TITLE_MANY">
        <source>%1 objects selected</source>
        <translation>%1 objects selected</translation>
    </message>
    <message id="UI_PROPERTIES_TITLE_ONE">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="UI_PROP_ACTION_CATEGORY">
        <source>Action category</source>
        <translation>Action category</translation>
    </message>
    <message id="UI_PROP_ACTIVE">
        <source>Active in analysis</source>
        <translation>Active in analysis</translation>
    </message>
    <message id="UI_PROP_COLOR">
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message id="UI_PROP_COMMENT">
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message id="UI_PROP_COORDINATE_SYSTEM">
        <source>Coordinate system</source>
        <translation>Coordinate system</translation>
    </message>
    <message id="UI_PROP_ELASTIC_MODULUS">
        <source>Elastic modulus E</source>
        <translation>Elastic modulus E</translation>
    </message>
    <message id="UI_PROP_END_NODE">
        <source>End node</source>
        <translation>End node</translation>
    </message>
    <message id="UI_PROP_FACTOR_X">
        <source>Factor in X</source>
        <translation>Factor in X</translation>
    </message>
    <message id="UI_PROP_FACTOR_Y">
        <source>Factor in Y</source>
        <translation>Factor in Y</translation>
    </message>
    <message id="UI_PROP_FACTOR_Z">
        <source>Factor in Z</source>
        <translation>Factor in Z</translation>
    </message>
    <message id="UI_PROP_FLANGE_THICKNESS">
        <source>Flange thickness t&lt;sub&gt;f&lt;/sub&gt;</source>
        <translation>Flange thickness t&lt;sub&gt;f&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_HEIGHT">
        <source>Height h</source>
        <translation>Height h</translation>
    </message>
    <message id="UI_PROP_HINGE_END">
        <source>Hinge at end</source>
        <translation>Hinge at end</translation>
    </message>
    <message id="UI_PROP_HINGE_START">
        <source>Hinge at start</source>
        <translation>Hinge at start</translation>
    </message>
    <message id="UI_PROP_MATERIAL">
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message id="UI_PROP_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="UI_PROP_NUMBER">
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message id="UI_PROP_PARTIAL_FACTOR">
        <source>Partial factor γ&lt;sub&gt;F&lt;/sub&gt;</source>
        <translation>Partial factor γ&lt;sub&gt;F&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_ROTATION">
        <source>Rotation β</source>
        <translation>Rotation β</translation>
    </message>
    <message id="UI_PROP_SECTION_SHAPE">
        <source>Shape</source>
        <translation>Shape</translation>
    </message>
    <message id="UI_PROP_SELF_WEIGHT">
        <source>Include self-weight</source>
        <translation>Include self-weight</translation>
    </message>
    <message id="UI_PROP_SHOW_LABEL">
        <source>Show label</source>
        <translation>Show label</translation>
    </message>
    <message id="UI_PROP_SPRING_ROT_X">
        <source>Spring k&lt;sub&gt;φx&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;φx&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_SPRING_ROT_Y">
        <source>Spring k&lt;sub&gt;φy&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;φy&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_SPRING_ROT_Z">
        <source>Spring k&lt;sub&gt;φz&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;φz&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_SPRING_X">
        <source>Spring k&lt;sub&gt;x&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;x&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_SPRING_Y">
        <source>Spring k&lt;sub&gt;y&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;y&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_SPRING_Z">
        <source>Spring k&lt;sub&gt;z&lt;/sub&gt;</source>
        <translation>Spring k&lt;sub&gt;z&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_START_NODE">
        <source>Start node</source>
        <translation>Start node</translation>
    </message>
    <message id="UI_PROP_SUPPORT_TYPE">
        <source>Support type</source>
        <translation>Support type</translation>
    </message>
    <message id="UI_PROP_WEB_THICKNESS">
        <source>Web thickness t&lt;sub&gt;w&lt;/sub&gt;</source>
        <translation>Web thickness t&lt;sub&gt;w&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_WIDTH">
        <source>Width b</source>
        <translation>Width b</translation>
    </message>
    <message id="UI_PROP_X">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="UI_PROP_Y">
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message id="UI_PROP_YIELD_STRENGTH">
        <source>Yield strength f&lt;sub&gt;y&lt;/sub&gt;</source>
        <translation>Yield strength f&lt;sub&gt;y&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_Z">
        <source>Z</source>
        <translation>Z</translation>
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
        <source>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1,5; 2). An expression with units is converted to the unit of its field: =30cm in a field in m gives 0.3, =45deg in a field in degrees gives 45.</source>
        <translation>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1,5; 2). An expression with units is converted to the unit of its field: =30cm in a field in m gives 0.3, =45deg in a field in degrees gives 45.</translation>
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
    <message id="UI_PROPERTIES_MIXED">
        <source>Mixed</source>
        <translation>Mixed</translation>
    </message>
    <message id="UI_PROPERTIES_MIXED_VALUES">
        <source>%1 different values</source>
        <translation>%1 different values</translation>
    </message>
    <message id="UI_PROPERTIES_RESET_TO_DEFAULT">
        <source>Reset to default</source>
        <translation>Reset to default</translation>
    </message>
    <message id="UI_PROPERTIES_YES">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="UI_PROPERTIES_NO">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="UI_PROPERTIES_EMPTY_TEXT">
        <source>(empty)</source>
        <translation>(empty)</translation>
    </message>
    <message id="UI_PROPERTIES_BASIC">
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message id="UI_PROPERTIES_ADVANCED">
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message id="UI_PROPERTIES_EXPAND_ALL">
        <source>Expand all</source>
        <translation>Expand all</translation>
    </message>
    <message id="UI_PROPERTIES_ILLUSTRATIONS">
        <source>Illustrations</source>
        <translation>Illustrations</translation>
    </message>
    <message id="UI_PROPERTIES_EMPTY">
        <source>Select objects to see and edit their properties.</source>
        <translation>Select objects to see and edit their properties.</translation>
    </message>
    <message id="UI_PROPERTIES_NOTHING_IN_BASIC_MODE">
        <source>The selected objects have no basic property in common. Switch to Advanced to see all of them.</source>
        <translation>The selected objects have no basic property in common. Switch to Advanced to see all of them.</translation>
    </message>
    <message id="UI_DEMO_NODE_SUMMARY">
        <source>(%1; %2; %3) m  ·  %4</source>
        <translation>(%1; %2; %3) m  ·  %4</translation>
    </message>
    <message id="UI_DEMO_MEMBER_SUMMARY">
        <source>%1 → %2  ·  %3 %4 × %5 mm  ·  %6</source>
        <translation>%1 → %2  ·  %3 %4 × %5 mm  ·  %6</translation>
    </message>
    <message id="UI_DEMO_LOAD_CASE_SUMMARY">
        <source>%1  ·  γF %2  ·  self-weight %3</source>
        <translation>%1  ·  γF %2  ·  self-weight %3</translation>
    </message>
    <message id="UI_APP_PAGE_PROPERTIES">
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message id="UI_DEMO_OBJECTS">
        <source>Structural model</source>
        <translation>Structural model</translation>
    </message>
    <message id="UI_DEMO_OBJECTS_HINT">
        <source>Click an object to select it, Ctrl-click to add or remove one, Shift-click for a range. The panel edits every selected object at once; the list shows their values change.</source>
        <translation>Click an object to select it, Ctrl-click to add or remove one, Shift-click for a range. The panel edits every selected object at once; the list shows their values change.</translation>
    </message>
    <message id="UI_DEMO_SELECT_NODES">
        <source>Nodes</source>
        <translation>Nodes</translation>
    </message>
    <message id="UI_DEMO_SELECT_MEMBERS">
        <source>Members</source>
        <translation>Members</translation>
    </message>
    <message id="UI_DEMO_SELECT_LOAD_CASES">
        <source>Load cases</source>
        <translation>Load cases</translation>
    </message>
    <message id="UI_DEMO_SELECT_ALL">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="UI_DEMO_SELECT_NONE">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="UI_DEMO_SELECT">
        <source>Select:</source>
        <translation>Select:</translation>
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
