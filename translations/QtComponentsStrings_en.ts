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
</context>
</TS>
