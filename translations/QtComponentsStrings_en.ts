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
    <message id="UI_APP_NUMBER_FORMAT">
        <source>Numbers</source>
        <translation>Numbers</translation>
    </message>
    <message id="UI_APP_NUMBER_FORMAT_POINT">
        <source>1.5 (decimal point)</source>
        <translation>1.5 (decimal point)</translation>
    </message>
    <message id="UI_APP_NUMBER_FORMAT_COMMA">
        <source>1,5 (decimal comma)</source>
        <translation>1,5 (decimal comma)</translation>
    </message>
    <message id="UI_APP_PAGE_OVERVIEW">
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message id="UI_APP_OVERVIEW_TEXT">
        <source>The working parts of a structural-engineering application's user interface, as one Qt Quick module: tables of a hundred thousand rows with filters and multi-cell editing, numeric inputs that take expressions with units, a radial marking menu, a foldable properties panel and keyboard shortcuts. Each part below is live; its page shows it at work.</source>
        <translation>The working parts of a structural-engineering application's user interface, as one Qt Quick module: tables of a hundred thousand rows with filters and multi-cell editing, numeric inputs that take expressions with units, a radial marking menu, a foldable properties panel and keyboard shortcuts. Each part below is live; its page shows it at work.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_TITLE">
        <source>QtComponents</source>
        <translation>QtComponents</translation>
    </message>
    <message id="UI_APP_OVERVIEW_TYPES">
        <source>types registered in %1</source>
        <translation>types registered in %1</translation>
    </message>
    <message id="UI_APP_OVERVIEW_MODULES">
        <source>modules of the component library</source>
        <translation>modules of the component library</translation>
    </message>
    <message id="UI_APP_OVERVIEW_LANGUAGE">
        <source>language of the string table</source>
        <translation>language of the string table</translation>
    </message>
    <message id="UI_APP_OVERVIEW_OPEN_PAGE">
        <source>Open the page</source>
        <translation>Open the page</translation>
    </message>
    <message id="UI_APP_OVERVIEW_VALUE_ENTRY">
        <source>Numbers or expressions, converted into the field's unit or refused with the reason. Try =30cm here.</source>
        <translation>Numbers or expressions, converted into the field's unit or refused with the reason. Try =30cm here.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_MARKING_MENU">
        <source>Hold the right mouse button over a view: four sections, six commands each, kept as XML. This is its Model ring.</source>
        <translation>Hold the right mouse button over a view: four sections, six commands each, kept as XML. This is its Model ring.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_PROPERTIES">
        <source>Every property of the selected objects, by category, folded and filtered; several objects edited at once, one undo step.</source>
        <translation>Every property of the selected objects, by category, folded and filtered; several objects edited at once, one undo step.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_TABLES">
        <source>100,000 members in input and result tables: a filter under every column, sorting, editing, multi-edit, copy and paste.</source>
        <translation>100,000 members in input and result tables: a filter under every column, sorting, editing, multi-edit, copy and paste.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_SHORTCUTS">
        <source>Application-wide shortcuts from the command repository, recorded by pressing them, off while a message box is open.</source>
        <translation>Application-wide shortcuts from the command repository, recorded by pressing them, off while a message box is open.</translation>
    </message>
    <message id="UI_APP_OVERVIEW_CALCULATOR">
        <source>Calculator</source>
        <translation>Calculator</translation>
    </message>
    <message id="UI_APP_OVERVIEW_CALCULATOR_TEXT">
        <source>The host's calculator knows the units of structural work and their dimensions.</source>
        <translation>The host's calculator knows the units of structural work and their dimensions.</translation>
    </message>
    <message id="UI_STRING_TABLE_LANGUAGE">
        <source>English (en)</source>
        <translation>English (en)</translation>
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
    <message id="UI_NUMERIC_INPUT_NOT_A_NUMBER">
        <source>%1 is not a number</source>
        <translation>%1 is not a number</translation>
    </message>
    <message id="UI_NUMERIC_INPUT_NO_EXPRESSIONS">
        <source>This field takes numbers only, no expressions</source>
        <translation>This field takes numbers only, no expressions</translation>
    </message>
    <message id="UI_COORDINATES_COUNT">
        <source>This field takes %1 values (%2); there are %3</source>
        <translation>This field takes %1 values (%2); there are %3</translation>
    </message>
    <message id="UI_COORDINATES_INVALID_VALUE">
        <source>The value of %1 is no valid expression</source>
        <translation>The value of %1 is no valid expression</translation>
    </message>
    <message id="UI_CALC_TOO_LONG">
        <source>The expression is longer than %1 characters</source>
        <translation>The expression is longer than %1 characters</translation>
    </message>
    <message id="UI_CALC_UNITS_DO_NOT_FIT">
        <source>These units do not fit together: %1</source>
        <translation>These units do not fit together: %1</translation>
    </message>
    <message id="UI_CALC_UNIT_OF_OTHER_QUANTITY">
        <source>%1 is %2; this field takes %3</source>
        <translation>%1 is %2; this field takes %3</translation>
    </message>
    <message id="UI_CALC_RESULT_OF_OTHER_QUANTITY">
        <source>The expression gives %1; this field takes %2</source>
        <translation>The expression gives %1; this field takes %2</translation>
    </message>
    <message id="UI_QUANTITY_NUMBER">
        <source>a number</source>
        <translation>a number</translation>
    </message>
    <message id="UI_QUANTITY_ANGLE">
        <source>an angle</source>
        <translation>an angle</translation>
    </message>
    <message id="UI_QUANTITY_LENGTH">
        <source>a length</source>
        <translation>a length</translation>
    </message>
    <message id="UI_QUANTITY_AREA">
        <source>an area</source>
        <translation>an area</translation>
    </message>
    <message id="UI_QUANTITY_VOLUME">
        <source>a volume</source>
        <translation>a volume</translation>
    </message>
    <message id="UI_QUANTITY_SECOND_MOMENT_OF_AREA">
        <source>a second moment of area</source>
        <translation>a second moment of area</translation>
    </message>
    <message id="UI_QUANTITY_FORCE">
        <source>a force</source>
        <translation>a force</translation>
    </message>
    <message id="UI_QUANTITY_FORCE_PER_LENGTH">
        <source>a force per length</source>
        <translation>a force per length</translation>
    </message>
    <message id="UI_QUANTITY_STRESS">
        <source>a stress</source>
        <translation>a stress</translation>
    </message>
    <message id="UI_QUANTITY_WEIGHT_PER_VOLUME">
        <source>a weight per volume</source>
        <translation>a weight per volume</translation>
    </message>
    <message id="UI_QUANTITY_MOMENT">
        <source>a moment</source>
        <translation>a moment</translation>
    </message>
    <message id="UI_QUANTITY_OTHER">
        <source>another quantity</source>
        <translation>another quantity</translation>
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
        <source>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1; 2). An expression with units is converted to the unit of its field (=30cm in a field in mm gives 300); a unit of another quantity is refused with the reason (=5kN in a field in m). Numbers are written with the decimal mark chosen at the top right; typed numbers may use either mark.</source>
        <translation>Type a number, or start with "=" to type an expression: =2*500mm, =sin(30deg), =max(1; 2). An expression with units is converted to the unit of its field (=30cm in a field in mm gives 300); a unit of another quantity is refused with the reason (=5kN in a field in m). Numbers are written with the decimal mark chosen at the top right; typed numbers may use either mark.</translation>
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
    <message id="UI_VALUE_ENTRY_FORCE">
        <source>Support reaction</source>
        <translation>Support reaction</translation>
    </message>
    <message id="UI_VALUE_ENTRY_LINE_LOAD">
        <source>Line load</source>
        <translation>Line load</translation>
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
    <message id="UI_VALUE_ENTRY_EXAMPLE_TYPED">
        <source>Typed</source>
        <translation>Typed</translation>
    </message>
    <message id="UI_VALUE_ENTRY_EXAMPLE_FIELD_UNIT">
        <source>Field in</source>
        <translation>Field in</translation>
    </message>
    <message id="UI_VALUE_ENTRY_EXAMPLE_RESULT">
        <source>Stored, or why not</source>
        <translation>Stored, or why not</translation>
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
    <message id="UI_MARKING_MENU_COMMAND_UNAVAILABLE">
        <source>%1 cannot run now</source>
        <translation>%1 cannot run now</translation>
    </message>
    <message id="UI_COMMAND_ORIGIN_MARKING_MENU">
        <source>Marking menu</source>
        <translation>Marking menu</translation>
    </message>
    <message id="UI_COMMAND_ORIGIN_HOTKEY_HANDLER">
        <source>Keyboard shortcut</source>
        <translation>Keyboard shortcut</translation>
    </message>
    <message id="UI_COMMAND_ORIGIN_SPOTLIGHT">
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message id="UI_COMMAND_ORIGIN_MENU_SYSTEM">
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message id="UI_COMMAND_ORIGIN_INPUT_PANEL">
        <source>Input panel</source>
        <translation>Input panel</translation>
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
    <message id="UI_COMMAND_SAVE_AS">
        <source>Save as…</source>
        <translation>Save as…</translation>
    </message>
    <message id="UI_MODEL_FILE_DEFAULT_NAME">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_MODEL_FILE_OPEN_STEP">
        <source>Open %1</source>
        <translation>Open %1</translation>
    </message>
    <message id="UI_MODEL_FILE_BAD_FIELD">
        <source>Entry %1 of “%2”: “%3” is missing or not valid</source>
        <translation>Entry %1 of “%2”: “%3” is missing or not valid</translation>
    </message>
    <message id="UI_MODEL_FILE_BAD_LIST">
        <source>“%1” is not a list</source>
        <translation>“%1” is not a list</translation>
    </message>
    <message id="UI_MODEL_FILE_DUPLICATE">
        <source>%1 appears twice in the file</source>
        <translation>%1 appears twice in the file</translation>
    </message>
    <message id="UI_MODEL_FILE_NOT_JSON">
        <source>The file cannot be read: %1 at character %2</source>
        <translation>The file cannot be read: %1 at character %2</translation>
    </message>
    <message id="UI_MODEL_FILE_NOT_MODEL">
        <source>The file is not a structural model</source>
        <translation>The file is not a structural model</translation>
    </message>
    <message id="UI_MODEL_FILE_BAD_VERSION">
        <source>The file does not say which version of the model format it is written in</source>
        <translation>The file does not say which version of the model format it is written in</translation>
    </message>
    <message id="UI_MODEL_FILE_NEWER">
        <source>The file is written in version %1 of the model format, by a newer application; this one reads up to version %2</source>
        <translation>The file is written in version %1 of the model format, by a newer application; this one reads up to version %2</translation>
    </message>
    <message id="UI_MODEL_FILE_OBJECT_PROBLEM">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="UI_MODEL_FILE_CANNOT_READ">
        <source>Cannot read %1: %2</source>
        <translation>Cannot read %1: %2</translation>
    </message>
    <message id="UI_MODEL_FILE_CANNOT_WRITE">
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILE_SAVED">
        <source>Saved %1</source>
        <translation>Saved %1</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILE_OPENED">
        <source>Opened %1</source>
        <translation>Opened %1</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILE_OPENED_UNDO">
        <source>Undo brings back the model you had before.</source>
        <translation>Undo brings back the model you had before.</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILE_OPEN_FAILED">
        <source>Could not open %1</source>
        <translation>Could not open %1</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILE_SAVE_FAILED">
        <source>Could not save %1</source>
        <translation>Could not save %1</translation>
    </message>
    <message id="UI_FILEDROP_OPEN">
        <source>Drop to open %1</source>
        <translation>Drop to open %1</translation>
    </message>
    <message id="UI_FILEDROP_UNSUPPORTED">
        <source>Only model files (%1) can be opened here</source>
        <translation>Only model files (%1) can be opened here</translation>
    </message>
    <message id="UI_FILEDROP_CANNOT_OPEN_NOW">
        <source>Files cannot be opened right now</source>
        <translation>Files cannot be opened right now</translation>
    </message>
    <message id="UI_COMMAND_RESTART_TOUR">
        <source>Restart the tour</source>
        <translation>Restart the tour</translation>
    </message>
    <message id="UI_MENU_HELP">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="UI_TUTORIAL_PROGRESS">
        <source>Step %1 of %2</source>
        <translation>Step %1 of %2</translation>
    </message>
    <message id="UI_TUTORIAL_NEXT">
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message id="UI_TUTORIAL_BACK">
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message id="UI_TUTORIAL_DONE">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="UI_TUTORIAL_SKIP">
        <source>Skip the tour</source>
        <translation>Skip the tour</translation>
    </message>
    <message id="UI_TUTORIAL_MENUS_TITLE">
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message id="UI_TUTORIAL_MENUS_TEXT">
        <source>Every command of the application is in the menus, with its shortcut. File opens and saves models and lists the ones you used last.</source>
        <translation>Every command of the application is in the menus, with its shortcut. File opens and saves models and lists the ones you used last.</translation>
    </message>
    <message id="UI_TUTORIAL_SEARCH_TITLE">
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message id="UI_TUTORIAL_SEARCH_TEXT">
        <source>Type a few letters of a command to find it in the menus. Ctrl+Space opens the spotlight, which also finds objects and tables.</source>
        <translation>Type a few letters of a command to find it in the menus. Ctrl+Space opens the spotlight, which also finds objects and tables.</translation>
    </message>
    <message id="UI_TUTORIAL_VIEW_TITLE">
        <source>The model view</source>
        <translation>The model view</translation>
    </message>
    <message id="UI_TUTORIAL_VIEW_TEXT">
        <source>Turn the model with the middle mouse button, zoom with the wheel, click or drag to select. Hold the right button for the marking menu.</source>
        <translation>Turn the model with the middle mouse button, zoom with the wheel, click or drag to select. Hold the right button for the marking menu.</translation>
    </message>
    <message id="UI_TUTORIAL_OBJECTS_TITLE">
        <source>Objects of the model</source>
        <translation>Objects of the model</translation>
    </message>
    <message id="UI_TUTORIAL_OBJECTS_TEXT">
        <source>Every object of the model, kind by kind. What you select here is selected in the view and shown in the properties panel.</source>
        <translation>Every object of the model, kind by kind. What you select here is selected in the view and shown in the properties panel.</translation>
    </message>
    <message id="UI_TUTORIAL_PROCESS_TITLE">
        <source>Process toolbar</source>
        <translation>Process toolbar</translation>
    </message>
    <message id="UI_TUTORIAL_PROCESS_TEXT">
        <source>The steps from model to results. Its main button does what comes next, such as calculating the model.</source>
        <translation>The steps from model to results. Its main button does what comes next, such as calculating the model.</translation>
    </message>
    <message id="UI_TUTORIAL_UNITS_TITLE">
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message id="UI_TUTORIAL_UNITS_TEXT">
        <source>The units numbers are shown in. Choose others here; every field and table follows.</source>
        <translation>The units numbers are shown in. Choose others here; every field and table follows.</translation>
    </message>
    <message id="UI_TUTORIAL_NOTIFICATIONS_TITLE">
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message id="UI_TUTORIAL_NOTIFICATIONS_TEXT">
        <source>What the application tells you: calculations that finished, edits it refused, files it saved. You can restart this tour from the Help menu.</source>
        <translation>What the application tells you: calculations that finished, edits it refused, files it saved. You can restart this tour from the Help menu.</translation>
    </message>
    <message id="UI_APP_FILE_OPEN_TITLE">
        <source>Open a model</source>
        <translation>Open a model</translation>
    </message>
    <message id="UI_APP_FILE_SAVE_TITLE">
        <source>Save the model as</source>
        <translation>Save the model as</translation>
    </message>
    <message id="UI_APP_FILE_PATH">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="UI_APP_FILE_OPEN">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="UI_APP_FILE_SAVE">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="UI_APP_FILE_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="UI_COMMAND_REPORT">
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message id="UI_COMMON_SEARCH">
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message id="UI_COMMON_NO_MATCHES">
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message id="UI_COMMON_SELECT_ALL">
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message id="UI_COMMON_NONE_SELECTED">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="UI_COMMON_ALL_SELECTED">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="UI_COMMON_N_SELECTED">
        <source>%1 selected</source>
        <translation>%1 selected</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_ANSWERS">
        <source>Answers</source>
        <translation>Answers</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_RECENT">
        <source>Recent</source>
        <translation>Recent</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_COMMANDS">
        <source>Commands</source>
        <translation>Commands</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_OBJECTS">
        <source>Objects</source>
        <translation>Objects</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_TABLES">
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message id="UI_SPOTLIGHT_SECTION_SETTINGS">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="UI_SPOTLIGHT_PLACEHOLDER">
        <source>Search commands, objects, tables and settings, or calculate with =</source>
        <translation>Search commands, objects, tables and settings, or calculate with =</translation>
    </message>
    <message id="UI_SPOTLIGHT_WAITING_INPUT">
        <source>%1 is waiting: type coordinates such as 1 2 3</source>
        <translation>%1 is waiting: type coordinates such as 1 2 3</translation>
    </message>
    <message id="UI_SPOTLIGHT_NO_RECENT">
        <source>Type to search. Your recent choices will be listed here.</source>
        <translation>Type to search. Your recent choices will be listed here.</translation>
    </message>
    <message id="UI_SPOTLIGHT_ENTER_COPIES">
        <source>Enter copies the result</source>
        <translation>Enter copies the result</translation>
    </message>
    <message id="UI_SPOTLIGHT_ENTER_OFFERS">
        <source>Enter gives it to the command</source>
        <translation>Enter gives it to the command</translation>
    </message>
    <message id="UI_COMMAND_OPEN">
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message id="UI_INPUT_CATEGORY_GEOMETRY">
        <source>Geometry</source>
        <translation>Geometry</translation>
    </message>
    <message id="UI_INPUT_CATEGORY_PARAMETERS">
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
    <message id="UI_INPUT_CATEGORY_SELECTION">
        <source>Selection</source>
        <translation>Selection</translation>
    </message>
    <message id="UI_INPUT_GROUP_VECTOR">
        <source>Vector</source>
        <translation>Vector</translation>
    </message>
    <message id="UI_INPUT_GROUP_COPIES">
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message id="UI_INPUT_GROUP_OBJECTS">
        <source>Objects</source>
        <translation>Objects</translation>
    </message>
    <message id="UI_INPUT_GROUP_POINT">
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message id="UI_INPUT_GROUP_MEMBER">
        <source>Member</source>
        <translation>Member</translation>
    </message>
    <message id="UI_INPUT_DIRECTION">
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message id="UI_INPUT_DIRECTION_X">
        <source>Along X</source>
        <translation>Along X</translation>
    </message>
    <message id="UI_INPUT_DIRECTION_Y">
        <source>Along Y</source>
        <translation>Along Y</translation>
    </message>
    <message id="UI_INPUT_DIRECTION_Z">
        <source>Along Z (vertical)</source>
        <translation>Along Z (vertical)</translation>
    </message>
    <message id="UI_INPUT_MODE">
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message id="UI_INPUT_MODE_MOVE">
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message id="UI_INPUT_MODE_COPY">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="UI_INPUT_NO_OBJECTS">
        <source>Nothing selected</source>
        <translation>Nothing selected</translation>
    </message>
    <message id="UI_INPUT_SOME_REFUSED">
        <source>some positions were refused</source>
        <translation>some positions were refused</translation>
    </message>
    <message id="UI_INPUT_APPLY">
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message id="UI_INPUT_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="UI_MENU_OBJECT">
        <source>Object</source>
        <translation>Object</translation>
    </message>
    <message id="UI_MENU_SEARCH_EMPTY">
        <source>No command matches</source>
        <translation>No command matches</translation>
    </message>
    <message id="UI_MENU_FILE">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="UI_MENU_EDIT">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="UI_MENU_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_MENU_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_MENU_VIEW">
        <source>View</source>
        <translation>View</translation>
    </message>
    <message id="UI_MENU_SUPPORTS">
        <source>Supports and hinges</source>
        <translation>Supports and hinges</translation>
    </message>
    <message id="UI_MENU_SEARCH">
        <source>Search the menus</source>
        <translation>Search the menus</translation>
    </message>
    <message id="UI_SUBCOMMAND_LINE">
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message id="UI_SUBCOMMAND_POLYLINE">
        <source>Polyline</source>
        <translation>Polyline</translation>
    </message>
    <message id="UI_SUBCOMMAND_ARC">
        <source>Arc</source>
        <translation>Arc</translation>
    </message>
    <message id="UI_SUBCOMMAND_DIVIDE_HALVES">
        <source>Into halves</source>
        <translation>Into halves</translation>
    </message>
    <message id="UI_SUBCOMMAND_DIVIDE_THIRDS">
        <source>Into thirds</source>
        <translation>Into thirds</translation>
    </message>
    <message id="UI_SUBCOMMAND_DIVIDE_AT_NODES">
        <source>At the nodes on it</source>
        <translation>At the nodes on it</translation>
    </message>
    <message id="UI_APP_PAGE_COMMANDS">
        <source>Commands</source>
        <translation>Commands</translation>
    </message>
    <message id="UI_APP_PAGE_REPORT">
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message id="UI_APP_REPORT">
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message id="UI_APP_REPORT_PROJECT">
        <source>Demo building</source>
        <translation>Demo building</translation>
    </message>
    <message id="UI_APP_COMMANDS_SPOTLIGHT_TITLE">
        <source>Spotlight</source>
        <translation>Spotlight</translation>
    </message>
    <message id="UI_APP_COMMANDS_SPOTLIGHT_TEXT">
        <source>Find any command, object, table or setting by typing a few letters of it, in any order and with typos; =2*3 calculates. Ctrl+Space opens the spotlight on every page. Run New member, then type its points here (1 2 3, Enter).</source>
        <translation>Find any command, object, table or setting by typing a few letters of it, in any order and with typos; =2*3 calculates. Ctrl+Space opens the spotlight on every page. Run New member, then type its points here (1 2 3, Enter).</translation>
    </message>
    <message id="UI_APP_COMMANDS_CANCEL">
        <source>Cancel command</source>
        <translation>Cancel command</translation>
    </message>
    <message id="UI_APP_COMMANDS_LAST_INPUT">
        <source>Took %1: %2</source>
        <translation>Took %1: %2</translation>
    </message>
    <message id="UI_APP_COMMANDS_COMBOS_TITLE">
        <source>Choosing from lists</source>
        <translation>Choosing from lists</translation>
    </message>
    <message id="UI_APP_COMMANDS_KIND">
        <source>Kind of object</source>
        <translation>Kind of object</translation>
    </message>
    <message id="UI_APP_COMMANDS_OBJECT">
        <source>Object</source>
        <translation>Object</translation>
    </message>
    <message id="UI_APP_COMMANDS_LOAD_CASES">
        <source>Load cases to combine</source>
        <translation>Load cases to combine</translation>
    </message>
    <message id="UI_APP_COMMANDS_CHOSEN">
        <source>Chosen: %1</source>
        <translation>Chosen: %1</translation>
    </message>
    <message id="UI_APP_COMMANDS_SEARCH">
        <source>Cross-sections by name</source>
        <translation>Cross-sections by name</translation>
    </message>
    <message id="UI_SETTING_ROTATION_SENSITIVITY">
        <source>Rotation sensitivity</source>
        <translation>Rotation sensitivity</translation>
    </message>
    <message id="UI_SETTING_ZOOM_SENSITIVITY">
        <source>Zoom sensitivity</source>
        <translation>Zoom sensitivity</translation>
    </message>
    <message id="UI_SETTING_ZOOM_FOLLOW_CAMERA">
        <source>Zoom along the line of sight</source>
        <translation>Zoom along the line of sight</translation>
    </message>
    <message id="UI_SETTING_ZOOM_NEAREST_LIMIT">
        <source>Nearest zoom distance</source>
        <translation>Nearest zoom distance</translation>
    </message>
    <message id="UI_SETTING_ZOOM_FARTHEST_LIMIT">
        <source>Farthest zoom distance</source>
        <translation>Farthest zoom distance</translation>
    </message>
    <message id="UI_SETTING_PICKING_RADIUS">
        <source>Object picking radius</source>
        <translation>Object picking radius</translation>
    </message>
    <message id="UI_SETTING_RENDERER">
        <source>Renderer</source>
        <translation>Renderer</translation>
    </message>
    <message id="UI_SETTING_DEFAULT">
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message id="UI_COMMAND_GROUP_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_COMMAND_GROUP_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_COMMAND_GROUP_VIEW">
        <source>View</source>
        <translation>View</translation>
    </message>
    <message id="UI_COMMAND_GROUP_EDIT">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="UI_COMMAND_GROUP_HISTORY">
        <source>History</source>
        <translation>History</translation>
    </message>
    <message id="UI_COMMAND_GROUP_FILE">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="UI_COMMAND_NEW_NODE_SYNONYMS">
        <source>point, joint</source>
        <translation>point, joint</translation>
    </message>
    <message id="UI_COMMAND_NEW_MEMBER_SYNONYMS">
        <source>beam, column, bar, line</source>
        <translation>beam, column, bar, line</translation>
    </message>
    <message id="UI_COMMAND_NEW_SURFACE_SYNONYMS">
        <source>slab, plate, wall, shell</source>
        <translation>slab, plate, wall, shell</translation>
    </message>
    <message id="UI_COMMAND_NEW_SUPPORT_SYNONYMS">
        <source>restraint, fixity, bearing</source>
        <translation>restraint, fixity, bearing</translation>
    </message>
    <message id="UI_COMMAND_NEW_HINGE_SYNONYMS">
        <source>release, pin</source>
        <translation>release, pin</translation>
    </message>
    <message id="UI_COMMAND_SELF_WEIGHT_SYNONYMS">
        <source>gravity, dead load</source>
        <translation>gravity, dead load</translation>
    </message>
    <message id="UI_COMMAND_LOAD_COMBINATIONS_SYNONYMS">
        <source>combos, load factors</source>
        <translation>combos, load factors</translation>
    </message>
    <message id="UI_COMMAND_SHOW_RESULTS_SYNONYMS">
        <source>analysis, calculate, deformation</source>
        <translation>analysis, calculate, deformation</translation>
    </message>
    <message id="UI_COMMAND_MOVE_SYNONYMS">
        <source>translate, shift</source>
        <translation>translate, shift</translation>
    </message>
    <message id="UI_COMMAND_COPY_SYNONYMS">
        <source>duplicate, array</source>
        <translation>duplicate, array</translation>
    </message>
    <message id="UI_COMMAND_DELETE_SYNONYMS">
        <source>remove, erase</source>
        <translation>remove, erase</translation>
    </message>
    <message id="UI_COMMAND_DIVIDE_MEMBER_SYNONYMS">
        <source>split</source>
        <translation>split</translation>
    </message>
    <message id="UI_PROMPT_START_POINT">
        <source>Start point</source>
        <translation>Start point</translation>
    </message>
    <message id="UI_PROMPT_END_POINT">
        <source>End point</source>
        <translation>End point</translation>
    </message>
    <message id="UI_PROMPT_MOVE_VECTOR">
        <source>Move by</source>
        <translation>Move by</translation>
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
        <source>Structural members of the model. Type a filter under a column title (5, &lt;=5, [2;4], S355) and press Enter to apply it, click a title to sort, drag its edge to resize or the title itself to move the column. Double-click or start typing to edit; numbers may be expressions with units such as =2*1,5 or 2500mm. Ctrl+Home and Ctrl+End go to the first and the last line. The last line (*) adds a member. Ctrl+C and Ctrl+V copy and paste; the box above edits every selected cell at once (+5, *2, ~0.5, &gt;S355, ?IPE).</source>
        <translation>Structural members of the model. Type a filter under a column title (5, &lt;=5, [2;4], S355) and press Enter to apply it, click a title to sort, drag its edge to resize or the title itself to move the column. Double-click or start typing to edit; numbers may be expressions with units such as =2*1,5 or 2500mm. Ctrl+Home and Ctrl+End go to the first and the last line. The last line (*) adds a member. Ctrl+C and Ctrl+V copy and paste; the box above edits every selected cell at once (+5, *2, ~0.5, &gt;S355, ?IPE).</translation>
    </message>
    <message id="UI_DEMO_TABLES_SOURCE">
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message id="UI_DEMO_TABLES_GENERATED">
        <source>Generated members</source>
        <translation>Generated members</translation>
    </message>
    <message id="UI_DEMO_TABLES_MODEL_HINT">
        <source>The tables of the structural model, one per kind of object, in tabs by workstation (the model, its loads): open more with the + button, drag tabs to reorder them, Ctrl+PageUp and Ctrl+PageDown move between them. Every edit, paste, multi-edit and new row is one step of the undo history (Ctrl+Z, Ctrl+Y); the selected rows show in the properties panel, and an edit there shows here.</source>
        <translation>The tables of the structural model, one per kind of object, in tabs by workstation (the model, its loads): open more with the + button, drag tabs to reorder them, Ctrl+PageUp and Ctrl+PageDown move between them. Every edit, paste, multi-edit and new row is one step of the undo history (Ctrl+Z, Ctrl+Y); the selected rows show in the properties panel, and an edit there shows here.</translation>
    </message>
    <message id="UI_DEMO_TABLES_INPUT">
        <source>Model input tables</source>
        <translation>Model input tables</translation>
    </message>
    <message id="UI_DEMO_TABLES_RESULTS">
        <source>Analysis results</source>
        <translation>Analysis results</translation>
    </message>
    <message id="UI_DEMO_TABLES_RESULTS_HINT">
        <source>The results of the last analysis (run it on the Analysis page), read from the results database a hundred rows at a time as you scroll: filters and sorting work on millions of rows. Open more tables with the + button, drag tabs to reorder them, Ctrl+PageUp and Ctrl+PageDown move between them.</source>
        <translation>The results of the last analysis (run it on the Analysis page), read from the results database a hundred rows at a time as you scroll: filters and sorting work on millions of rows. Open more tables with the + button, drag tabs to reorder them, Ctrl+PageUp and Ctrl+PageDown move between them.</translation>
    </message>
    <message id="UI_DEMO_TABLES_ROWS">
        <source>%1 of %2 rows shown</source>
        <translation>%1 of %2 rows shown</translation>
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
    <message id="UI_TABLE_TAB_OPEN">
        <source>Open a table</source>
        <translation>Open a table</translation>
    </message>
    <message id="UI_TABLE_TAB_ALERTED">
        <source>Some values of this table break a rule of their property</source>
        <translation>Some values of this table break a rule of their property</translation>
    </message>
    <message id="UI_TABLE_NO_TAB_OPEN">
        <source>No table is open: open one with the + button</source>
        <translation>No table is open: open one with the + button</translation>
    </message>
    <message id="UI_TABLE_RESULTS_EMPTY">
        <source>No results yet: run the analysis to fill this table</source>
        <translation>No results yet: run the analysis to fill this table</translation>
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
    <message id="UI_TABLE_FILTER_NOT_UNDERSTOOD">
        <source>This filter is not understood. Write a comparison such as &lt;=5 or &lt;&gt;S355, a range such as [2;4], or a text to look for.</source>
        <translation>This filter is not understood. Write a comparison such as &lt;=5 or &lt;&gt;S355, a range such as [2;4], or a text to look for.</translation>
    </message>
    <message id="UI_APP_PAGE_SHORTCUTS">
        <source>Shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message id="UI_APP_PAGE_ANALYSIS">
        <source>Analysis</source>
        <translation>Analysis</translation>
    </message>
    <message id="UI_DEMO_ANALYSIS">
        <source>Linear analysis</source>
        <translation>Linear analysis</translation>
    </message>
    <message id="UI_DEMO_ANALYSIS_HINT">
        <source>The structural model every page shows, analysed by the direct stiffness method on a thread of its own: the window stays responsive, and the analysis can be stopped. Start the demo with --model-size MEMBERS for a bigger building.</source>
        <translation>The structural model every page shows, analysed by the direct stiffness method on a thread of its own: the window stays responsive, and the analysis can be stopped. Start the demo with --model-size MEMBERS for a bigger building.</translation>
    </message>
    <message id="UI_DEMO_ANALYSE">
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message id="UI_DEMO_STOP">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="UI_DEMO_RESULTS_OUT_OF_DATE">
        <source>The model has changed since the analysis: analyse again to update the results.</source>
        <translation>The model has changed since the analysis: analyse again to update the results.</translation>
    </message>
    <message id="UI_DEMO_RESULTS_SUMMARY">
        <source>Results summary</source>
        <translation>Results summary</translation>
    </message>
    <message id="UI_DEMO_RESULTS_SUMMARY_HINT">
        <source>Per load case and combination; the results tables read the same results from their database.</source>
        <translation>Per load case and combination; the results tables read the same results from their database.</translation>
    </message>
    <message id="UI_DEMO_SUMMARY_SET">
        <source>Load case / combination</source>
        <translation>Load case / combination</translation>
    </message>
    <message id="UI_DEMO_SUMMARY_DISPLACEMENT">
        <source>Largest displacement</source>
        <translation>Largest displacement</translation>
    </message>
    <message id="UI_DEMO_SUMMARY_REACTIONS">
        <source>Support reactions ΣFx / ΣFy / ΣFz</source>
        <translation>Support reactions ΣFx / ΣFy / ΣFz</translation>
    </message>
    <message id="UI_DEMO_SUMMARY_MOMENT">
        <source>Largest bending moment</source>
        <translation>Largest bending moment</translation>
    </message>
    <message id="UI_DEMO_NO_RESULTS">
        <source>No results yet.</source>
        <translation>No results yet.</translation>
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
        <source>Press the keys (Ctrl+Shift+K), or type them (Del)</source>
        <translation>Press the keys (Ctrl+Shift+K), or type them (Del)</translation>
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
    <message id="UI_APP_SHORTCUTS_CONFLICT_TITLE">
        <source>Shortcut in use</source>
        <translation>Shortcut in use</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_CONFLICT_TEXT">
        <source>%1 already runs %2. Move it to %3? %2 then has no shortcut.</source>
        <translation>%1 already runs %2. Move it to %3? %2 then has no shortcut.</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_CONFLICT_MOVE">
        <source>Move shortcut</source>
        <translation>Move shortcut</translation>
    </message>
    <message id="UI_APP_SHORTCUTS_CONFLICT_KEEP">
        <source>Keep as it is</source>
        <translation>Keep as it is</translation>
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
    <message id="UI_CHOICE_DIRECTION_GLOBAL_X">
        <source>Global X</source>
        <translation>Global X</translation>
    </message>
    <message id="UI_CHOICE_DIRECTION_GLOBAL_Y">
        <source>Global Y</source>
        <translation>Global Y</translation>
    </message>
    <message id="UI_CHOICE_DIRECTION_GLOBAL_Z">
        <source>Global Z</source>
        <translation>Global Z</translation>
    </message>
    <message id="UI_CHOICE_DIRECTION_LOCAL_Y">
        <source>Local y</source>
        <translation>Local y</translation>
    </message>
    <message id="UI_CHOICE_DIRECTION_LOCAL_Z">
        <source>Local z</source>
        <translation>Local z</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C20">
        <source>C20/25</source>
        <translation>C20/25</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C25">
        <source>C25/30</source>
        <translation>C25/30</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C35">
        <source>C35/45</source>
        <translation>C35/45</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C40">
        <source>C40/50</source>
        <translation>C40/50</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_C24">
        <source>C24</source>
        <translation>C24</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_GL28H">
        <source>GL28h</source>
        <translation>GL28h</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_STEEL">
        <source>Steel</source>
        <translation>Steel</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_CONCRETE">
        <source>Concrete</source>
        <translation>Concrete</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_TIMBER">
        <source>Timber</source>
        <translation>Timber</translation>
    </message>
    <message id="UI_CHOICE_MATERIAL_USER_DEFINED">
        <source>User-defined</source>
        <translation>User-defined</translation>
    </message>
    <message id="UI_CHOICE_RELEASE_RIGID">
        <source>Rigid</source>
        <translation>Rigid</translation>
    </message>
    <message id="UI_CHOICE_RELEASE_HINGE">
        <source>Hinge (My, Mz)</source>
        <translation>Hinge (My, Mz)</translation>
    </message>
    <message id="UI_CHOICE_RELEASE_HINGE_Y">
        <source>Hinge about y (My)</source>
        <translation>Hinge about y (My)</translation>
    </message>
    <message id="UI_CHOICE_RELEASE_HINGE_Z">
        <source>Hinge about z (Mz)</source>
        <translation>Hinge about z (Mz)</translation>
    </message>
    <message id="UI_CHOICE_RELEASE_ALL_MOMENTS">
        <source>Ball joint (T, My, Mz)</source>
        <translation>Ball joint (T, My, Mz)</translation>
    </message>
    <message id="UI_CHOICE_SECTION_RHS">
        <source>Rectangular hollow</source>
        <translation>Rectangular hollow</translation>
    </message>
    <message id="UI_CHOICE_SECTION_CHS">
        <source>Circular hollow</source>
        <translation>Circular hollow</translation>
    </message>
    <message id="UI_CHOICE_SUPPORT_CUSTOM">
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message id="UI_COUNT_NODES">
        <source>%1 nodes</source>
        <translation>%1 nodes</translation>
    </message>
    <message id="UI_COUNT_MEMBERS">
        <source>%1 members</source>
        <translation>%1 members</translation>
    </message>
    <message id="UI_COUNT_SUPPORTS">
        <source>%1 supports</source>
        <translation>%1 supports</translation>
    </message>
    <message id="UI_COUNT_CROSS_SECTIONS">
        <source>%1 cross-sections</source>
        <translation>%1 cross-sections</translation>
    </message>
    <message id="UI_COUNT_MATERIALS">
        <source>%1 materials</source>
        <translation>%1 materials</translation>
    </message>
    <message id="UI_COUNT_LOAD_CASES">
        <source>%1 load cases</source>
        <translation>%1 load cases</translation>
    </message>
    <message id="UI_COUNT_NODAL_LOADS">
        <source>%1 nodal loads</source>
        <translation>%1 nodal loads</translation>
    </message>
    <message id="UI_COUNT_MEMBER_LOADS">
        <source>%1 member loads</source>
        <translation>%1 member loads</translation>
    </message>
    <message id="UI_COUNT_COMBINATIONS">
        <source>%1 combinations</source>
        <translation>%1 combinations</translation>
    </message>
    <message id="UI_COUNT_OBJECTS">
        <source>%1 objects</source>
        <translation>%1 objects</translation>
    </message>
    <message id="UI_DEMO_SHOW">
        <source>Show:</source>
        <translation>Show:</translation>
    </message>
    <message id="UI_DEMO_OBJECT_COUNT">
        <source>%1 objects</source>
        <translation>%1 objects</translation>
    </message>
    <message id="UI_MODEL_ERROR_ABOVE_MAXIMUM">
        <source>%1 is above the largest value allowed, %2</source>
        <translation>%1 is above the largest value allowed, %2</translation>
    </message>
    <message id="UI_MODEL_ERROR_BELOW_MINIMUM">
        <source>%1 is below the smallest value allowed, %2</source>
        <translation>%1 is below the smallest value allowed, %2</translation>
    </message>
    <message id="UI_MODEL_ERROR_COMBINATION_EMPTY">
        <source>A combination needs at least one load case</source>
        <translation>A combination needs at least one load case</translation>
    </message>
    <message id="UI_MODEL_ERROR_COMBINATION_TEXT">
        <source>Write a combination as factors times load cases, such as </source>
        <translation>Write a combination as factors times load cases, such as 1.35*LC1 + 1.5*LC2</translation>
    </message>
    <message id="UI_MODEL_ERROR_FLANGES_TOO_THICK">
        <source>Two flanges of %1 mm do not fit in a height of %2 mm</source>
        <translation>Two flanges of %1 mm do not fit in a height of %2 mm</translation>
    </message>
    <message id="UI_MODEL_ERROR_WEB_TOO_THICK">
        <source>A web of %1 mm does not fit in a width of %2 mm</source>
        <translation>A web of %1 mm does not fit in a width of %2 mm</translation>
    </message>
    <message id="UI_MODEL_ERROR_WALL_TOO_THICK">
        <source>A wall of %1 mm is too thick for %2 mm: it must be less t</source>
        <translation>A wall of %1 mm is too thick for %2 mm: it must be less than half of it</translation>
    </message>
    <message id="UI_MODEL_ERROR_IN_USE">
        <source>%1 is used by %2</source>
        <translation>%1 is used by %2</translation>
    </message>
    <message id="UI_MODEL_ERROR_NEGATIVE">
        <source>A spring cannot be negative</source>
        <translation>A spring cannot be negative</translation>
    </message>
    <message id="UI_MODEL_ERROR_NOT_A_COLOUR">
        <source>This is not a colour</source>
        <translation>This is not a colour</translation>
    </message>
    <message id="UI_MODEL_ERROR_NOT_A_NUMBER">
        <source>This is not a number</source>
        <translation>This is not a number</translation>
    </message>
    <message id="UI_MODEL_ERROR_NOT_POSITIVE">
        <source>The value must be greater than 0</source>
        <translation>The value must be greater than 0</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_CHOICE">
        <source>There is no choice %1</source>
        <translation>There is no choice %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_LOAD_CASE">
        <source>There is no load case %1</source>
        <translation>There is no load case %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_MATERIAL">
        <source>There is no material %1</source>
        <translation>There is no material %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_MEMBER">
        <source>There is no member %1</source>
        <translation>There is no member %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_NODE">
        <source>There is no node %1</source>
        <translation>There is no node %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_NO_SECTION">
        <source>There is no cross-section %1</source>
        <translation>There is no cross-section %1</translation>
    </message>
    <message id="UI_MODEL_ERROR_READ_ONLY">
        <source>%1 cannot be changed</source>
        <translation>%1 cannot be changed</translation>
    </message>
    <message id="UI_MODEL_ERROR_SAME_NODES">
        <source>A member cannot start and end at the same node (%1)</source>
        <translation>A member cannot start and end at the same node (%1)</translation>
    </message>
    <message id="UI_MODEL_ERROR_SUPPORT_TAKEN">
        <source>%1 has a support already: %2</source>
        <translation>%1 has a support already: %2</translation>
    </message>
    <message id="UI_MODEL_ERROR_WRONG_TYPE">
        <source>%1 is not a value of this property</source>
        <translation>%1 is not a value of this property</translation>
    </message>
    <message id="UI_MODEL_ERROR_ZERO_LENGTH">
        <source>%1 would have no length: nodes %2 and %3 lie at the same </source>
        <translation>%1 would have no length: nodes %2 and %3 lie at the same place</translation>
    </message>
    <message id="UI_ANALYSIS_STOPPING">
        <source>Stopping once this step is done…</source>
        <translation>Stopping once this step is done…</translation>
    </message>
    <message id="UI_ANALYSIS_MODEL">
        <source>%1 nodes, %2 members, %3 load cases, %4 combinations</source>
        <translation>%1 nodes, %2 members, %3 load cases, %4 combinations</translation>
    </message>
    <message id="UI_ANALYSIS_STAGE_PREPARING">
        <source>Preparing the model</source>
        <translation>Preparing the model</translation>
    </message>
    <message id="UI_ANALYSIS_STAGE_ASSEMBLING">
        <source>Assembling the stiffness matrix</source>
        <translation>Assembling the stiffness matrix</translation>
    </message>
    <message id="UI_ANALYSIS_STAGE_FACTORISING">
        <source>Factorising the stiffness matrix</source>
        <translation>Factorising the stiffness matrix</translation>
    </message>
    <message id="UI_ANALYSIS_STAGE_SOLVING">
        <source>Solving the load cases</source>
        <translation>Solving the load cases</translation>
    </message>
    <message id="UI_ANALYSIS_STAGE_WRITING">
        <source>Writing the results</source>
        <translation>Writing the results</translation>
    </message>
    <message id="UI_ANALYSIS_DONE">
        <source>Analysed %1 degrees of freedom in %2 s</source>
        <translation>Analysed %1 degrees of freedom in %2 s</translation>
    </message>
    <message id="UI_ANALYSIS_STOPPED">
        <source>The analysis was stopped</source>
        <translation>The analysis was stopped</translation>
    </message>
    <message id="UI_ANALYSIS_FAILED">
        <source>The analysis failed: %1</source>
        <translation>The analysis failed: %1</translation>
    </message>
    <message id="UI_ANALYSIS_SUMMARY_DISPLACEMENT">
        <source>%1 mm at %2</source>
        <translation>%1 mm at %2</translation>
    </message>
    <message id="UI_ANALYSIS_SUMMARY_REACTIONS">
        <source>%1 / %2 / %3 kN</source>
        <translation>%1 / %2 / %3 kN</translation>
    </message>
    <message id="UI_ANALYSIS_SUMMARY_MOMENT">
        <source>%1 kNm in %2</source>
        <translation>%1 kNm in %2</translation>
    </message>
    <message id="UI_RESULTS_SET">
        <source>Load case / combination</source>
        <translation>Load case / combination</translation>
    </message>
    <message id="UI_RESULTS_SET_LOAD_CASE">
        <source>LC%1 %2</source>
        <translation>LC%1 %2</translation>
    </message>
    <message id="UI_RESULTS_SET_COMBINATION">
        <source>CO%1 %2</source>
        <translation>CO%1 %2</translation>
    </message>
    <message id="UI_REPORT_TITLE">
        <source>Structural analysis report</source>
        <translation>Structural analysis report</translation>
    </message>
    <message id="UI_REPORT_PROJECT">
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message id="UI_REPORT_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_REPORT_CREATED">
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message id="UI_REPORT_ANALYSIS">
        <source>Analysis</source>
        <translation>Analysis</translation>
    </message>
    <message id="UI_REPORT_ANALYSED">
        <source>Analysed, %1 degrees of freedom</source>
        <translation>Analysed, %1 degrees of freedom</translation>
    </message>
    <message id="UI_REPORT_NOT_ANALYSED">
        <source>Not analysed yet</source>
        <translation>Not analysed yet</translation>
    </message>
    <message id="UI_REPORT_VIEW">
        <source>View of the model</source>
        <translation>View of the model</translation>
    </message>
    <message id="UI_REPORT_RESULTS">
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message id="UI_REPORT_NO_RESULTS">
        <source>No results: the model has not been analysed. Run the analysis and the results appear here.</source>
        <translation>No results: the model has not been analysed. Run the analysis and the results appear here.</translation>
    </message>
    <message id="UI_REPORT_RESULTS_OUT_OF_DATE">
        <source>These results are out of date: the model changed after the analysis.</source>
        <translation>These results are out of date: the model changed after the analysis.</translation>
    </message>
    <message id="UI_REPORT_SUMMARY">
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message id="UI_REPORT_SUMMARY_SET">
        <source>Load case / combination</source>
        <translation>Load case / combination</translation>
    </message>
    <message id="UI_REPORT_SUMMARY_DISPLACEMENT">
        <source>Largest displacement</source>
        <translation>Largest displacement</translation>
    </message>
    <message id="UI_REPORT_SUMMARY_REACTIONS">
        <source>Support reactions X / Y / Z</source>
        <translation>Support reactions X / Y / Z</translation>
    </message>
    <message id="UI_REPORT_SUMMARY_MOMENT">
        <source>Largest bending moment</source>
        <translation>Largest bending moment</translation>
    </message>
    <message id="UI_REPORT_TABLE_EMPTY">
        <source>None.</source>
        <translation>None.</translation>
    </message>
    <message id="UI_REPORT_ROWS_OMITTED">
        <source>%1 more rows are in the application&apos;s table.</source>
        <translation>%1 more rows are in the application&apos;s table.</translation>
    </message>
    <message id="UI_REPORT_PAGE_OF">
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="UI_REPORT_ZOOM_PERCENT">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="UI_REPORT_FILE_NAME">
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message id="UI_REPORT_ERROR_EMPTY">
        <source>There is no report to export.</source>
        <translation>There is no report to export.</translation>
    </message>
    <message id="UI_REPORT_ERROR_CANNOT_WRITE">
        <source>The report could not be written to %1: %2</source>
        <translation>The report could not be written to %1: %2</translation>
    </message>
    <message id="UI_REPORT_PREVIOUS_PAGE">
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message id="UI_REPORT_NEXT_PAGE">
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message id="UI_REPORT_ZOOM_IN">
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message id="UI_REPORT_ZOOM_OUT">
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message id="UI_REPORT_FIT_WIDTH">
        <source>Fit width</source>
        <translation>Fit width</translation>
    </message>
    <message id="UI_REPORT_REFRESH">
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message id="UI_REPORT_EXPORT_PDF">
        <source>Export PDF</source>
        <translation>Export PDF</translation>
    </message>
    <message id="UI_REPORT_EXPORT_PATH">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="UI_REPORT_EXPORTED">
        <source>Written to %1</source>
        <translation>Written to %1</translation>
    </message>
    <message id="UI_REPORT_CONTENTS">
        <source>Contents</source>
        <translation>Contents</translation>
    </message>
    <message id="UI_RESULTS_TABLE_NODE_DISPLACEMENTS">
        <source>Node displacements</source>
        <translation>Node displacements</translation>
    </message>
    <message id="UI_RESULTS_TABLE_SUPPORT_REACTIONS">
        <source>Support reactions</source>
        <translation>Support reactions</translation>
    </message>
    <message id="UI_RESULTS_TABLE_MEMBER_END_FORCES">
        <source>Member end forces</source>
        <translation>Member end forces</translation>
    </message>
    <message id="UI_RESULTS_TABLE_MEMBER_STATION_FORCES">
        <source>Member forces along members</source>
        <translation>Member forces along members</translation>
    </message>
    <message id="UI_RESULTS_END">
        <source>End</source>
        <translation>End</translation>
    </message>
    <message id="UI_RESULTS_END_START">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="UI_RESULTS_END_END">
        <source>End</source>
        <translation>End</translation>
    </message>
    <message id="UI_RESULTS_X">
        <source>x</source>
        <translation>x</translation>
    </message>
    <message id="UI_RESULTS_UX">
        <source>ux</source>
        <translation>ux</translation>
    </message>
    <message id="UI_RESULTS_UY">
        <source>uy</source>
        <translation>uy</translation>
    </message>
    <message id="UI_RESULTS_UZ">
        <source>uz</source>
        <translation>uz</translation>
    </message>
    <message id="UI_RESULTS_RX">
        <source>φx</source>
        <translation>φx</translation>
    </message>
    <message id="UI_RESULTS_RY">
        <source>φy</source>
        <translation>φy</translation>
    </message>
    <message id="UI_RESULTS_RZ">
        <source>φz</source>
        <translation>φz</translation>
    </message>
    <message id="UI_RESULTS_FX">
        <source>Fx</source>
        <translation>Fx</translation>
    </message>
    <message id="UI_RESULTS_FY">
        <source>Fy</source>
        <translation>Fy</translation>
    </message>
    <message id="UI_RESULTS_FZ">
        <source>Fz</source>
        <translation>Fz</translation>
    </message>
    <message id="UI_RESULTS_MX">
        <source>Mx</source>
        <translation>Mx</translation>
    </message>
    <message id="UI_RESULTS_MY">
        <source>My</source>
        <translation>My</translation>
    </message>
    <message id="UI_RESULTS_MZ">
        <source>Mz</source>
        <translation>Mz</translation>
    </message>
    <message id="UI_RESULTS_N">
        <source>N</source>
        <translation>N</translation>
    </message>
    <message id="UI_RESULTS_VY">
        <source>Vy</source>
        <translation>Vy</translation>
    </message>
    <message id="UI_RESULTS_VZ">
        <source>Vz</source>
        <translation>Vz</translation>
    </message>
    <message id="UI_RESULTS_T">
        <source>T</source>
        <translation>T</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_NO_MEMBERS">
        <source>There is nothing to analyse: the model has no members</source>
        <translation>There is nothing to analyse: the model has no members</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_NO_LOAD_CASES">
        <source>There is nothing to analyse: the model has no load cases</source>
        <translation>There is nothing to analyse: the model has no load cases</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_FREE_NODE">
        <source>%1 is not connected to any member or support</source>
        <translation>%1 is not connected to any member or support</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_MECHANISM">
        <source>The structure is unstable: %1 can move in %2 without resistance (a mechanism)</source>
        <translation>The structure is unstable: %1 can move in %2 without resistance (a mechanism)</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_UNRESISTED_LOAD">
        <source>%1 is loaded in %2, where nothing holds it</source>
        <translation>%1 is loaded in %2, where nothing holds it</translation>
    </message>
    <message id="UI_ANALYSIS_ERROR_SINGULAR">
        <source>The structure is unstable: its stiffness matrix is singular</source>
        <translation>The structure is unstable: its stiffness matrix is singular</translation>
    </message>
    <message id="UI_TABLE_ERROR_NO_COLUMN">
        <source>There is no column %1</source>
        <translation>There is no column %1</translation>
    </message>
    <message id="UI_UNDO_TABLE_CELLS">
        <source>Edit %1 cells in %2</source>
        <translation>Edit %1 cells in %2</translation>
    </message>
    <message id="UI_UNDO_TABLE_ROW">
        <source>Add a row to %1</source>
        <translation>Add a row to %1</translation>
    </message>
    <message id="UI_UNDO_TABLE_ROWS">
        <source>Add %1 rows to %2</source>
        <translation>Add %1 rows to %2</translation>
    </message>
    <message id="UI_TABLES_WORKSTATION_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_TABLES_WORKSTATION_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_TABLES_WORKSTATION_RESULTS">
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message id="UI_OBJECT_SUPPORT">
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message id="UI_OBJECT_SUPPORTS">
        <source>Supports</source>
        <translation>Supports</translation>
    </message>
    <message id="UI_OBJECT_CROSS_SECTION">
        <source>Cross-section</source>
        <translation>Cross-section</translation>
    </message>
    <message id="UI_OBJECT_CROSS_SECTIONS">
        <source>Cross-sections</source>
        <translation>Cross-sections</translation>
    </message>
    <message id="UI_OBJECT_MATERIAL">
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message id="UI_OBJECT_MATERIALS">
        <source>Materials</source>
        <translation>Materials</translation>
    </message>
    <message id="UI_OBJECT_NODAL_LOAD">
        <source>Nodal load</source>
        <translation>Nodal load</translation>
    </message>
    <message id="UI_OBJECT_NODAL_LOADS">
        <source>Nodal loads</source>
        <translation>Nodal loads</translation>
    </message>
    <message id="UI_OBJECT_MEMBER_LOAD">
        <source>Member load</source>
        <translation>Member load</translation>
    </message>
    <message id="UI_OBJECT_MEMBER_LOADS">
        <source>Member loads</source>
        <translation>Member loads</translation>
    </message>
    <message id="UI_OBJECT_COMBINATION">
        <source>Combination</source>
        <translation>Combination</translation>
    </message>
    <message id="UI_OBJECT_COMBINATIONS">
        <source>Combinations</source>
        <translation>Combinations</translation>
    </message>
    <message id="UI_PROPERTIES_CATEGORY_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_FIXITIES">
        <source>Fixed directions</source>
        <translation>Fixed directions</translation>
    </message>
    <message id="UI_PROPERTIES_SUB_SECTION_VALUES">
        <source>Section values</source>
        <translation>Section values</translation>
    </message>
    <message id="UI_PROP_AREA">
        <source>Area A</source>
        <translation>Area A</translation>
    </message>
    <message id="UI_PROP_IY">
        <source>Second moment I&lt;sub&gt;y&lt;/sub&gt;</source>
        <translation>Second moment I&lt;sub&gt;y&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_IZ">
        <source>Second moment I&lt;sub&gt;z&lt;/sub&gt;</source>
        <translation>Second moment I&lt;sub&gt;z&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_IT">
        <source>Torsion constant I&lt;sub&gt;t&lt;/sub&gt;</source>
        <translation>Torsion constant I&lt;sub&gt;t&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_COMBINATION">
        <source>Load cases and factors</source>
        <translation>Load cases and factors</translation>
    </message>
    <message id="UI_PROP_CONCRETE_CLASS">
        <source>Strength class</source>
        <translation>Strength class</translation>
    </message>
    <message id="UI_PROP_STEEL_GRADE">
        <source>Steel grade</source>
        <translation>Steel grade</translation>
    </message>
    <message id="UI_PROP_TIMBER_CLASS">
        <source>Strength class</source>
        <translation>Strength class</translation>
    </message>
    <message id="UI_PROP_CROSS_SECTION">
        <source>Cross-section</source>
        <translation>Cross-section</translation>
    </message>
    <message id="UI_PROP_DENSITY">
        <source>Density ρ</source>
        <translation>Density ρ</translation>
    </message>
    <message id="UI_PROP_DIAMETER">
        <source>Diameter d</source>
        <translation>Diameter d</translation>
    </message>
    <message id="UI_PROP_DIRECTION">
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message id="UI_PROP_FIXED_UX">
        <source>Fixed in X</source>
        <translation>Fixed in X</translation>
    </message>
    <message id="UI_PROP_FIXED_UY">
        <source>Fixed in Y</source>
        <translation>Fixed in Y</translation>
    </message>
    <message id="UI_PROP_FIXED_UZ">
        <source>Fixed in Z</source>
        <translation>Fixed in Z</translation>
    </message>
    <message id="UI_PROP_FIXED_RX">
        <source>Fixed about X</source>
        <translation>Fixed about X</translation>
    </message>
    <message id="UI_PROP_FIXED_RY">
        <source>Fixed about Y</source>
        <translation>Fixed about Y</translation>
    </message>
    <message id="UI_PROP_FIXED_RZ">
        <source>Fixed about Z</source>
        <translation>Fixed about Z</translation>
    </message>
    <message id="UI_PROP_FORCE_X">
        <source>Force F&lt;sub&gt;x&lt;/sub&gt;</source>
        <translation>Force F&lt;sub&gt;x&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_FORCE_Y">
        <source>Force F&lt;sub&gt;y&lt;/sub&gt;</source>
        <translation>Force F&lt;sub&gt;y&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_FORCE_Z">
        <source>Force F&lt;sub&gt;z&lt;/sub&gt;</source>
        <translation>Force F&lt;sub&gt;z&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_MOMENT_X">
        <source>Moment M&lt;sub&gt;x&lt;/sub&gt;</source>
        <translation>Moment M&lt;sub&gt;x&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_MOMENT_Y">
        <source>Moment M&lt;sub&gt;y&lt;/sub&gt;</source>
        <translation>Moment M&lt;sub&gt;y&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_MOMENT_Z">
        <source>Moment M&lt;sub&gt;z&lt;/sub&gt;</source>
        <translation>Moment M&lt;sub&gt;z&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_LENGTH">
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message id="UI_PROP_LINE_LOAD">
        <source>Load q</source>
        <translation>Load q</translation>
    </message>
    <message id="UI_PROP_MATERIAL_CATEGORY">
        <source>Kind of material</source>
        <translation>Kind of material</translation>
    </message>
    <message id="UI_PROP_NODE">
        <source>Node</source>
        <translation>Node</translation>
    </message>
    <message id="UI_PROP_RELEASE_START">
        <source>At start</source>
        <translation>At start</translation>
    </message>
    <message id="UI_PROP_RELEASE_END">
        <source>At end</source>
        <translation>At end</translation>
    </message>
    <message id="UI_PROP_SHEAR_MODULUS">
        <source>Shear modulus G</source>
        <translation>Shear modulus G</translation>
    </message>
    <message id="UI_PROP_STRENGTH">
        <source>Strength f&lt;sub&gt;k&lt;/sub&gt;</source>
        <translation>Strength f&lt;sub&gt;k&lt;/sub&gt;</translation>
    </message>
    <message id="UI_PROP_WALL_THICKNESS">
        <source>Wall thickness t</source>
        <translation>Wall thickness t</translation>
    </message>
    <message id="UI_UNDO_SET_PROPERTY">
        <source>Set %1 of %2</source>
        <translation>Set %1 of %2</translation>
    </message>
    <message id="UI_UNDO_ADD">
        <source>Add %1</source>
        <translation>Add %1</translation>
    </message>
    <message id="UI_UNDO_DELETE">
        <source>Delete %1</source>
        <translation>Delete %1</translation>
    </message>
    <message id="UI_UNDO_ACTION">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="UI_GRAPHICVIEW_TITLE">
        <source>Model view</source>
        <translation>Model view</translation>
    </message>
    <message id="UI_APP_PAGE_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_APP_POINTER">
        <source>x %1 m   y %2 m   z %3 m</source>
        <translation>x %1 m   y %2 m   z %3 m</translation>
    </message>
    <message id="UI_APP_POINTER_NONE">
        <source>Pointer off the model</source>
        <translation>Pointer off the model</translation>
    </message>
    <message id="UI_APP_VIEW_SCALE">
        <source>1 pixel = %1 m</source>
        <translation>1 pixel = %1 m</translation>
    </message>
    <message id="UI_APP_VIEW_ISOMETRIC">
        <source>Isometric</source>
        <translation>Isometric</translation>
    </message>
    <message id="UI_APP_VIEW_TOP">
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message id="UI_APP_VIEW_FRONT">
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message id="UI_APP_VIEW_SIDE">
        <source>Side</source>
        <translation>Side</translation>
    </message>
    <message id="UI_APP_VIEW_FIT">
        <source>Fit all</source>
        <translation>Fit all</translation>
    </message>
    <message id="UI_APP_VIEW_SECTIONS">
        <source>Sections</source>
        <translation>Sections</translation>
    </message>
    <message id="UI_APP_VIEW_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_APP_VIEW_DEFORMED">
        <source>Deformed shape</source>
        <translation>Deformed shape</translation>
    </message>
    <message id="UI_APP_VIEW_MOMENTS">
        <source>Bending moments</source>
        <translation>Bending moments</translation>
    </message>
    <message id="UI_APP_VIEW_ANALYSE">
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message id="UI_APP_VIEW_ANALYSING">
        <source>Analysing…</source>
        <translation>Analysing…</translation>
    </message>
    <message id="UI_APP_OBJECTS_TITLE">
        <source>Objects of the model</source>
        <translation>Objects of the model</translation>
    </message>
    <message id="UI_APP_OBJECTS_SELECTED">
        <source>%1 of %2 selected</source>
        <translation>%1 of %2 selected</translation>
    </message>
    <message id="UI_APP_OBJECTS_NUMBER">
        <source>Object</source>
        <translation>Object</translation>
    </message>
    <message id="UI_APP_OBJECTS_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="UI_APP_OBJECTS_VALUES">
        <source>Values</source>
        <translation>Values</translation>
    </message>
    <message id="UI_UNITS_LENGTH">
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message id="UI_UNITS_FORCE">
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message id="UI_UNITS_MOMENT">
        <source>Moment</source>
        <translation>Moment</translation>
    </message>
    <message id="UI_UNITS_STRESS">
        <source>Stress</source>
        <translation>Stress</translation>
    </message>
    <message id="UI_STATUSBAR_UNITS">
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message id="UI_STATUSBAR_UNITS_TOOLTIP">
        <source>Units of lengths, forces, moments and stresses in every field and table</source>
        <translation>Units of lengths, forces, moments and stresses in every field and table</translation>
    </message>
    <message id="UI_STATUSBAR_SCALE">
        <source>1:%1</source>
        <translation>1:%1</translation>
    </message>
    <message id="UI_STATUSBAR_NO_SCALE">
        <source>No view</source>
        <translation>No view</translation>
    </message>
    <message id="UI_STATUSBAR_PIXEL">
        <source>1 px = %1 %2</source>
        <translation>1 px = %1 %2</translation>
    </message>
    <message id="UI_STATUSBAR_POINTER_NONE">
        <source>Pointer off the model</source>
        <translation>Pointer off the model</translation>
    </message>
    <message id="UI_STATUSBAR_WORK_PLANE">
        <source>Level %1 %2</source>
        <translation>Level %1 %2</translation>
    </message>
    <message id="UI_STATUSBAR_LOAD_CASE">
        <source>Load case %1</source>
        <translation>Load case %1</translation>
    </message>
    <message id="UI_STATUSBAR_WORK_PLANE_TOOLTIP">
        <source>Work plane new nodes are placed on</source>
        <translation>Work plane new nodes are placed on</translation>
    </message>
    <message id="UI_STATUSBAR_LOAD_CASE_TOOLTIP">
        <source>Load case new loads belong to and the view shows</source>
        <translation>Load case new loads belong to and the view shows</translation>
    </message>
    <message id="UI_STATUSBAR_NO_LOAD_CASE">
        <source>No load case</source>
        <translation>No load case</translation>
    </message>
    <message id="UI_STATUSBAR_SNAPS">
        <source>Snaps</source>
        <translation>Snaps</translation>
    </message>
    <message id="UI_STATUSBAR_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="UI_SNAP_NODES">
        <source>Node</source>
        <translation>Node</translation>
    </message>
    <message id="UI_SNAP_NODES_DESCRIPTION">
        <source>The pointer snaps to the nearest node</source>
        <translation>The pointer snaps to the nearest node</translation>
    </message>
    <message id="UI_SNAP_MIDPOINTS">
        <source>Midpoint</source>
        <translation>Midpoint</translation>
    </message>
    <message id="UI_SNAP_MIDPOINTS_DESCRIPTION">
        <source>The pointer snaps to the middle of a member</source>
        <translation>The pointer snaps to the middle of a member</translation>
    </message>
    <message id="UI_SNAP_MEMBERS">
        <source>On member</source>
        <translation>On member</translation>
    </message>
    <message id="UI_SNAP_MEMBERS_DESCRIPTION">
        <source>The pointer snaps to the nearest point of a member</source>
        <translation>The pointer snaps to the nearest point of a member</translation>
    </message>
    <message id="UI_SNAP_GRID">
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message id="UI_SNAP_GRID_DESCRIPTION">
        <source>The pointer snaps to the ground grid, one metre apart</source>
        <translation>The pointer snaps to the ground grid, one metre apart</translation>
    </message>
    <message id="UI_PROCESS_MODEL">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="UI_PROCESS_MODEL_DESCRIPTION">
        <source>Nodes, members, supports, sections and materials of the structure</source>
        <translation>Nodes, members, supports, sections and materials of the structure</translation>
    </message>
    <message id="UI_PROCESS_MODEL_ACTION">
        <source>Edit model</source>
        <translation>Edit model</translation>
    </message>
    <message id="UI_PROCESS_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_PROCESS_LOADS_DESCRIPTION">
        <source>Load cases, the loads on nodes and members, and their combinations</source>
        <translation>Load cases, the loads on nodes and members, and their combinations</translation>
    </message>
    <message id="UI_PROCESS_LOADS_ACTION">
        <source>Edit loads</source>
        <translation>Edit loads</translation>
    </message>
    <message id="UI_PROCESS_ANALYSIS">
        <source>Analysis</source>
        <translation>Analysis</translation>
    </message>
    <message id="UI_PROCESS_ANALYSIS_DESCRIPTION">
        <source>Linear analysis of the frame for every load case and combination</source>
        <translation>Linear analysis of the frame for every load case and combination</translation>
    </message>
    <message id="UI_PROCESS_ANALYSIS_ACTION">
        <source>Calculate</source>
        <translation>Calculate</translation>
    </message>
    <message id="UI_PROCESS_RESULTS">
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message id="UI_PROCESS_RESULTS_DESCRIPTION">
        <source>Deformed shape and internal forces of the last analysis</source>
        <translation>Deformed shape and internal forces of the last analysis</translation>
    </message>
    <message id="UI_PROCESS_RESULTS_ACTION">
        <source>Show results</source>
        <translation>Show results</translation>
    </message>
    <message id="UI_PROCESS_DESIGN">
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message id="UI_PROCESS_DESIGN_DESCRIPTION">
        <source>Checks every member&apos;s stress from axial force and bending against its material&apos;s strength, in every load case and combination</source>
        <translation>Checks every member&apos;s stress from axial force and bending against its material&apos;s strength, in every load case and combination</translation>
    </message>
    <message id="UI_PROCESS_DESIGN_ACTION">
        <source>Check design</source>
        <translation>Check design</translation>
    </message>
    <message id="UI_PROCESS_STATE_NOT_STARTED">
        <source>Not done yet</source>
        <translation>Not done yet</translation>
    </message>
    <message id="UI_PROCESS_STATE_DONE">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="UI_PROCESS_STATE_NEEDS_UPDATE">
        <source>Needs an update: the model changed since</source>
        <translation>Needs an update: the model changed since</translation>
    </message>
    <message id="UI_PROCESS_STATE_ERROR">
        <source>Has errors</source>
        <translation>Has errors</translation>
    </message>
    <message id="UI_PROCESS_STATE_RUNNING">
        <source>Running</source>
        <translation>Running</translation>
    </message>
    <message id="UI_PROCESS_ACTION_UNAVAILABLE">
        <source>Not available now</source>
        <translation>Not available now</translation>
    </message>
    <message id="UI_VIEWBAR_ISOMETRIC">
        <source>Isometric</source>
        <translation>Isometric</translation>
    </message>
    <message id="UI_VIEWBAR_TOP">
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message id="UI_VIEWBAR_FRONT">
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message id="UI_VIEWBAR_SIDE">
        <source>Side</source>
        <translation>Side</translation>
    </message>
    <message id="UI_VIEWBAR_FIT">
        <source>Fit all</source>
        <translation>Fit all</translation>
    </message>
    <message id="UI_VIEWBAR_SOLIDS">
        <source>Solids</source>
        <translation>Solids</translation>
    </message>
    <message id="UI_VIEWBAR_LOADS">
        <source>Loads</source>
        <translation>Loads</translation>
    </message>
    <message id="UI_VIEWBAR_SUPPORTS">
        <source>Supports</source>
        <translation>Supports</translation>
    </message>
    <message id="UI_VIEWBAR_DEFORMED">
        <source>Deformed</source>
        <translation>Deformed</translation>
    </message>
    <message id="UI_VIEWBAR_MOMENTS">
        <source>Moments</source>
        <translation>Moments</translation>
    </message>
    <message id="UI_NOTIFICATIONS_TITLE">
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message id="UI_NOTIFICATIONS_CLEAR_ALL">
        <source>Clear all</source>
        <translation>Clear all</translation>
    </message>
    <message id="UI_NOTIFICATIONS_EMPTY">
        <source>No notifications</source>
        <translation>No notifications</translation>
    </message>
    <message id="UI_NOTIFICATIONS_BUTTON_TOOLTIP">
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message id="UI_NOTIFICATIONS_CLOSE">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILTER_ERRORS">
        <source>Errors</source>
        <translation>Errors</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILTER_WARNINGS">
        <source>Warnings</source>
        <translation>Warnings</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILTER_SUCCESS">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="UI_NOTIFICATIONS_FILTER_INFORMATION">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="UI_NOTIFICATIONS_ANALYSIS_DONE">
        <source>Analysis finished</source>
        <translation>Analysis finished</translation>
    </message>
    <message id="UI_NOTIFICATIONS_ANALYSIS_FAILED">
        <source>Analysis failed</source>
        <translation>Analysis failed</translation>
    </message>
    <message id="UI_NOTIFICATIONS_EDIT_REFUSED">
        <source>Value not accepted</source>
        <translation>Value not accepted</translation>
    </message>
    <message id="UI_NOTIFICATIONS_SHOW_RESULTS">
        <source>Show results</source>
        <translation>Show results</translation>
    </message>
    <message id="UI_NOTIFICATIONS_SELECT_OBJECT">
        <source>Select the object</source>
        <translation>Select the object</translation>
    </message>
    <message id="UI_ACCOUNT_TITLE">
        <source>Profile and region</source>
        <translation>Profile and region</translation>
    </message>
    <message id="UI_ACCOUNT_DESCRIPTION">
        <source>Your name on reports, and the country whose standards apply</source>
        <translation>Your name on reports, and the country whose standards apply</translation>
    </message>
    <message id="UI_ACCOUNT_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="UI_ACCOUNT_ORGANISATION">
        <source>Organisation</source>
        <translation>Organisation</translation>
    </message>
    <message id="UI_ACCOUNT_INITIALS">
        <source>Initials</source>
        <translation>Initials</translation>
    </message>
    <message id="UI_ACCOUNT_COUNTRY">
        <source>Country</source>
        <translation>Country</translation>
    </message>
    <message id="UI_ACCOUNT_NO_COUNTRY">
        <source>No country chosen</source>
        <translation>No country chosen</translation>
    </message>
    <message id="UI_ACCOUNT_COUNTRY_SEARCH">
        <source>Search by name or code</source>
        <translation>Search by name or code</translation>
    </message>
    <message id="UI_ACCOUNT_CLOSE">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="UI_DESIGN_PASSED">
        <source>All %1 members pass; the largest utilisation is %2, in %3</source>
        <translation>All %1 members pass; the largest utilisation is %2, in %3</translation>
    </message>
    <message id="UI_DESIGN_FAILED">
        <source>%1 members are stressed beyond their strength; the largest utilisation is %2, in %3</source>
        <translation>%1 members are stressed beyond their strength; the largest utilisation is %2, in %3</translation>
    </message>
    <message id="UI_NOTIFICATIONS_DESIGN_PASSED">
        <source>Design check passed</source>
        <translation>Design check passed</translation>
    </message>
    <message id="UI_NOTIFICATIONS_DESIGN_FAILED">
        <source>Members over their strength</source>
        <translation>Members over their strength</translation>
    </message>
    <message id="UI_SETTING_ACCOUNT_NAME">
        <source>User name</source>
        <translation>User name</translation>
    </message>
    <message id="UI_SETTING_ACCOUNT_ORGANISATION">
        <source>Organisation</source>
        <translation>Organisation</translation>
    </message>
    <message id="UI_SETTING_ACCOUNT_COUNTRY">
        <source>Country</source>
        <translation>Country</translation>
    </message>
</context>
</TS>
