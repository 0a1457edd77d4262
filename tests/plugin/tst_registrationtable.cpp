#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/private/qqmlmetatype_p.h>
#include <QtTest>

#include <algorithm>
#include <memory>

// A host finds the module's types by name and relies on each one's class and base: a row lost in a
// merge, registered twice, moved out of order or given another base breaks hosts that were built
// against the module. The list below is the module's contract, written out once more on purpose.
class tst_RegistrationTable : public QObject
{
    Q_OBJECT

    static constexpr const char* c_module = "Qml.QtComponents";

    struct Row
    {
        const char* element;
        const char* className;
        const char* baseClassName;
    };

    static inline const Row c_rows[] = {
        { "Spotlight_Cpp", "Orvo::UI::UIComponents::Spotlight", "Orvo::UI::QtExtensions::UIComponent" },
        { "SpotlightModel", "Orvo::UI::UIComponents::SpotlightModel", "QAbstractListModel" },
        { "SpotlightProxyModel", "Orvo::UI::UIComponents::SpotlightProxyModel", "QSortFilterProxyModel" },
        { "SubcommandsModel", "Orvo::UI::UIComponents::SubcommandsModel", "QAbstractListModel" },
        { "MenuItemsModel", "Orvo::UI::UIComponents::MenuItemsModel", "QAbstractListModel" },
        // Deliberately without a meta-object of its own: QML sees the proxy it derives from.
        { "MenuItemsFilterModel", "QSortFilterProxyModel", "QAbstractProxyModel" },
        { "MenuSystem_Cpp", "Orvo::UI::UIComponents::MenuSystem", "Orvo::UI::QtExtensions::UIComponent" },
        { "HotkeyHandler_Cpp", "Orvo::UI::UIComponents::HotkeyHandler",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "AccountDataModel", "Orvo::UI::UIComponents::AccountDataModel", "QObject" },
        { "CountryCodeDataModel", "Orvo::UI::UIComponents::CountryCodeDataModel", "QObject" },
        { "UnitsSubDataModel", "Orvo::UI::UIComponents::UnitsSubDataModel", "QObject" },
        { "ScaleSubDataModel", "Orvo::UI::UIComponents::ScaleSubDataModel", "QObject" },
        { "SnappingSubDataModel", "Orvo::UI::UIComponents::SnappingSubDataModel", "QObject" },
        { "CoordinatesSubModel", "Orvo::UI::UIComponents::CoordinatesSubModel", "QObject" },
        { "MasterEntitySubDataModel", "Orvo::UI::UIComponents::MasterEntitySubDataModel", "QObject" },
        { "StatusbarData", "Orvo::UI::UIComponents::StatusBarDataModel", "QObject" },
        { "StatusBar_Cpp", "Orvo::UI::UIComponents::StatusBar", "Orvo::UI::QtExtensions::UIComponent" },
        { "ProcessToolbar_Cpp", "Orvo::UI::UIComponents::ProcessToolbar",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "CenterButtonData", "Orvo::UI::UIComponents::CenterButtonData", "QObject" },
        { "TooltipData", "Orvo::UI::UIComponents::TooltipData", "QObject" },
        { "ViewBar_Cpp", "Orvo::UI::UIComponents::ViewBar", "Orvo::UI::QtExtensions::UIComponent" },
        { "MoreOptionsMenuModel", "Orvo::UI::UIComponents::MoreOptionsMenuModel", "QObject" },
        { "ViewBarUserConfiguration", "Orvo::UI::UIComponents::ViewBarUserConfiguration", "QObject" },
        { "PropertiesPanelUserConfiguration", "Orvo::UI::UIComponents::PropertiesPanelUserConfiguration",
          "QObject" },
        { "ActionsModel", "Orvo::UI::UIComponents::ActionsModel", "QAbstractListModel" },
        { "EntityModel", "Orvo::UI::UIComponents::EntityModel", "QAbstractListModel" },
        { "PropertiesModel", "Orvo::UI::UIComponents::PropertiesModel", "QAbstractListModel" },
        { "PropertiesPanel_Cpp", "Orvo::UI::UIComponents::PropertiesPanel",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "PropertiesProxyModel", "Orvo::UI::UIComponents::PropertiesProxyModel", "QSortFilterProxyModel" },
        { "InputPanel_Cpp", "Orvo::UI::UIComponents::InputPanel", "Orvo::UI::QtExtensions::UIComponent" },
        { "InputPanelContainerModel", "Orvo::UI::UIComponents::InputPanelContainerModel",
          "QAbstractListModel" },
        { "InputPanelContainerProxyModel", "Orvo::UI::UIComponents::InputPanelContainerProxyModel",
          "QSortFilterProxyModel" },
        { "FilterBarItemProxyModel", "Orvo::UI::UIComponents::FilterBarItemProxyModel",
          "QSortFilterProxyModel" },
        { "FilterBarItemModel", "Orvo::UI::UIComponents::FilterBarItemModel", "QAbstractListModel" },
        { "TagModel", "Orvo::UI::UIComponents::TagModel", "QAbstractListModel" },
        { "InputPanelUserConfiguration", "Orvo::UI::UIComponents::InputPanelUserConfiguration", "QObject" },
        { "ReportPreview_Cpp", "Orvo::UI::UIComponents::ReportPreview",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "ComboBoxProxyModel", "Orvo::UI::UIComponents::ComboBoxProxyModel", "QSortFilterProxyModel" },
        { "FilterItemsProxyModel", "Orvo::UI::UIComponents::FilterItemsProxyModel", "QSortFilterProxyModel" },
        { "SelectionModel", "Orvo::UI::UIComponents::SelectionModel", "QObject" },
        { "SimpleComboBoxProxyModel", "Orvo::UI::UIComponents::SimpleComboBoxProxyModel",
          "QSortFilterProxyModel" },
        { "CommandMenuHelper", "Orvo::UI::UIComponents::CommandMenuHelper", "QObject" },
        { "FileDrop_Cpp", "Orvo::UI::UIComponents::FileDrop", "QObject" },
        { "IntegerValidator", "Orvo::UI::UIComponents::IntegerValidator", "QIntValidator" },
        { "RealValidator", "Orvo::UI::UIComponents::RealValidator", "QValidator" },
        { "InlineCalculator", "Orvo::UI::UIComponents::InlineCalculator", "QObject" },
        { "TutorialToolTip_Cpp", "Orvo::UI::UIComponents::TutorialToolTip",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "TutorialToolTipData", "Orvo::UI::UIComponents::TutorialToolTipData", "QObject" },
        { "IllustrationData", "Orvo::UI::UIComponents::IllustrationData", "QObject" },
        { "TableResult_Cpp", "Orvo::UI::UIComponents::TableResult", "Orvo::UI::QtExtensions::UIComponent" },
        { "TableInput_Cpp", "Orvo::UI::UIComponents::TableInput", "Orvo::UI::QtExtensions::UIComponent" },
        { "TableWorkstationsModel", "Orvo::UI::UIComponents::TableWorkstationsModel", "QAbstractListModel" },
        { "TableTabsModel", "Orvo::UI::UIComponents::TableTabsModel", "QAbstractListModel" },
        { "TableColumnsModel", "Orvo::UI::UIComponents::TableColumnsModel", "QAbstractListModel" },
        { "TableContentModel", "Orvo::UI::UIComponents::TableContentModel", "QAbstractTableModel" },
        { "MultiEditAction", "Orvo::UI::UIComponents::MultiEditAction", "QObject" },
        { "MultiEditActionSolver", "Orvo::UI::UIComponents::MultiEditActionSolver", "QObject" },
        { "MultiEditSearchResult", "Orvo::UI::UIComponents::MultiEditSearchResult", "QObject" },
        { "TableContentFilterModel", "Orvo::UI::UIComponents::TableContentFilterModel",
          "QSortFilterProxyModel" },
        { "TableSelectionModel", "Orvo::UI::UIComponents::TableSelectionModel", "QObject" },
        { "TableSelectionFilterModel", "Orvo::UI::UIComponents::TableSelectionFilterModel", "QObject" },
        { "FilterBarModel", "Orvo::UI::UIComponents::FilterBarModel", "QAbstractListModel" },
        { "MarkingMenuSectionConfig", "Orvo::UI::UIComponents::MarkingMenuSectionConfig", "QObject" },
        { "MarkingMenuConfig", "Orvo::UI::UIComponents::MarkingMenuConfig", "QObject" },
        { "MarkingMenu_Cpp", "Orvo::UI::UIComponents::MarkingMenu", "Orvo::UI::QtExtensions::UIComponent" },
        // The host's own window class, registered here because the marking menu's window is one.
        { "FramelessWindow", "Orvo::UI::QtExtensions::FramelessWindow", nullptr },
        { "Notifications_Cpp", "Orvo::UI::UIComponents::Notifications",
          "Orvo::UI::QtExtensions::UIComponent" },
        { "NotificationsModel", "Orvo::UI::UIComponents::NotificationsModel", "QAbstractListModel" },
        { "NotificationsFilterModel", "Orvo::UI::UIComponents::NotificationsFilterModel",
          "QSortFilterProxyModel" },
        { "NotificationsButtonsSelectionModel", "Orvo::UI::UIComponents::NotificationsButtonsSelectionModel",
          "QObject" },
        { "GraphicView_Cpp", "Orvo::UI::UIComponents::GraphicView", "Orvo::UI::QtExtensions::UIComponent" },
        { "Viewport", "Orvo::UI::UIComponents::Viewport", "QQuickItem" },
        { "Strings", "Orvo::UI::UIComponents::StringsQtComponents", "QObject" },
    };
    static constexpr int c_rowCount = int(std::size(c_rows));

    QQmlEngine m_engine;

    // Classes of the library may share a base of their own (a table panel, a searchable proxy);
    // what a host depends on is the first class above them that the library does not own.
    static const char* NearestForeignBase(const QMetaObject* metaObject)
    {
        const QMetaObject* base = metaObject->superClass();
        while (base && QByteArray(base->className()).startsWith("Orvo::UI::UIComponents::"))
            base = base->superClass();
        return base ? base->className() : "";
    }

    static QList<QQmlType> RegisteredInOrder()
    {
        QList<QQmlType> types;
        for (const QQmlType& type : QQmlMetaType::qmlAllTypes()) {
            if (type.module() == QLatin1String(c_module))
                types << type;
        }
        std::sort(types.begin(), types.end(),
                  [](const QQmlType& a, const QQmlType& b) { return a.index() < b.index(); });
        return types;
    }

private slots:
    void initTestCase()
    {
        m_engine.addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
        QQmlComponent importer(&m_engine);
        importer.setData("import QtQml\nimport Qml.QtComponents\nQtObject {}", QUrl());
        std::unique_ptr<QObject> imported(importer.create());
        QVERIFY2(imported, qPrintable(importer.errorString()));
    }

    void shouldRegisterEveryRowOnceInOrder()
    {
        QCOMPARE(c_rowCount, 73);
        QStringList registered;
        for (const QQmlType& type : RegisteredInOrder())
            registered << type.elementName();
        QStringList expected;
        for (const Row& row : c_rows)
            expected << QLatin1String(row.element);
        QCOMPARE(registered, expected);
    }

    // The native half of a panel is the root of the library's document of the same panel.
    void shouldMakeEachPanelTheRootOfItsDocument_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("document");
        for (const Row& row : c_rows) {
            const QString element = QLatin1String(row.element);
            if (!element.endsWith(QLatin1String("_Cpp")) || element == QLatin1String("FileDrop_Cpp"))
                continue;
            const QString panel = element.chopped(4);
            const QString folder
                = panel.startsWith(QLatin1String("Table")) ? QStringLiteral("Tables") : panel;
            QTest::newRow(row.element)
                << element << QStringLiteral("qrc:/UIComponents/%1/%2.qml").arg(folder, panel);
        }
    }

    void shouldMakeEachPanelTheRootOfItsDocument()
    {
        QFETCH(QString, element);
        QFETCH(QString, document);
        QQmlComponent component(&m_engine, QUrl(document));
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
        std::unique_ptr<QObject> panel(component.create());
        QVERIFY2(panel, qPrintable(component.errorString()));
        // The document's root is a type of its own, made by QML; the native type is below it.
        QString native;
        for (const QMetaObject* metaObject = panel->metaObject(); metaObject && native.isEmpty();
             metaObject = metaObject->superClass()) {
            const QQmlType type = QQmlMetaType::qmlType(metaObject);
            if (type.isValid() && type.module() == QLatin1String(c_module))
                native = type.elementName();
        }
        QCOMPARE(native, element);
    }

    void shouldRegisterEachRowWithItsClassAndBase_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < c_rowCount; ++row)
            QTest::newRow(c_rows[row].element) << row;
    }

    void shouldRegisterEachRowWithItsClassAndBase()
    {
        QFETCH(int, row);
        const Row& expected = c_rows[row];
        const QList<QQmlType> types = RegisteredInOrder();
        const auto found = std::find_if(types.cbegin(), types.cend(), [&](const QQmlType& type) {
            return type.elementName() == QLatin1String(expected.element);
        });
        QVERIFY2(found != types.cend(), "not registered");
        const QQmlType& type = *found;
        const bool isSingleton = row == c_rowCount - 1;
        QCOMPARE(type.isSingleton(), isSingleton);
        QCOMPARE(type.isCreatable(), !isSingleton);
        QVERIFY(!type.isExtendedType());
        QCOMPARE(type.version(), QTypeRevision::fromVersion(1, 0));
        QCOMPARE(type.metaObjectRevision(), QTypeRevision::zero());

        const QMetaObject* metaObject = type.metaObject();
        QVERIFY(metaObject);
        QCOMPARE(metaObject->className(), expected.className);
        if (expected.baseClassName)
            QCOMPARE(NearestForeignBase(metaObject), expected.baseClassName);
    }
};

QTEST_MAIN(tst_RegistrationTable)
#include "tst_registrationtable.moc"
