<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ru_RU">
<context>
    <name>DockListMenu.cpp</name>
    <message>
        <source>Панели</source>
        <translation>Panels</translation>
    </message>
</context>
<context>
    <name>MainWindowSettingsWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Панели инструментов</source>
        <translation>Toolbars</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Лента команд</source>
        <translation>Ribbon</translation>
    </message>
    <message>
        <source>Панель быстрого доступа</source>
        <translation>Quick Access Toolbar</translation>
    </message>
    <message>
        <source>Горячие клавиши</source>
        <translation>Keyboard Shortcuts</translation>
    </message>
</context>
<context>
    <name>QHotKeyPage</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Новое сочетание</source>
        <translation>New combination</translation>
    </message>
    <message>
        <source>Добавить сочетание клавиш для команды</source>
        <translation>Add a key combination for the command</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Текущие сочетания</source>
        <translation>Current combinations</translation>
    </message>
    <message>
        <source>Удалить сочетание горячих клавиш</source>
        <translation>Delete the hot key combination</translation>
    </message>
    <message>
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>QToolBarPage</name>
    <message>
        <source>Панели инструментов</source>
        <translation>Toolbars</translation>
    </message>
    <message>
        <source>Панели инструментов:</source>
        <translation>Toolbars:</translation>
    </message>
    <message>
        <source>Добавить панель инструментов</source>
        <translation>Add a toolbar</translation>
    </message>
    <message>
        <source>Удалить панель инструментов</source>
        <translation>Delete the toolbar</translation>
    </message>
    <message>
        <source>Переименовать панель инструментов</source>
        <translation>Rename the toolbar</translation>
    </message>
    <message>
        <source>Содержимое панели:</source>
        <translation>Toolbar contents:</translation>
    </message>
    <message>
        <source>Добавить команду на панель</source>
        <translation>Add the command to the toolbar</translation>
    </message>
    <message>
        <source>Добавить команду в группу</source>
        <translation>Add the command to the group</translation>
    </message>
    <message>
        <source>Убрать с панели</source>
        <translation>Remove from the toolbar</translation>
    </message>
    <message>
        <source>Добавить группу команд</source>
        <translation>Add a command group</translation>
    </message>
    <message>
        <source>Добавить разделитель</source>
        <translation>Add a separator</translation>
    </message>
    <message>
        <source>Переместить вверх</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Переместить вниз</source>
        <translation>Move down</translation>
    </message>
</context>
<context>
    <name>QToolBarPage.cpp</name>
    <message>
        <source>Группа команд</source>
        <translation>Command group</translation>
    </message>
    <message>
        <source>Только иконка</source>
        <translation>Icon only</translation>
    </message>
    <message>
        <source>Только текст</source>
        <translation>Text only</translation>
    </message>
    <message>
        <source>Текст возле иконки</source>
        <translation>Text beside the icon</translation>
    </message>
    <message>
        <source>Текст под иконкой</source>
        <translation>Text under the icon</translation>
    </message>
    <message>
        <source>По умолчанию</source>
        <translation>Default</translation>
    </message>
</context>
<context>
    <name>QuickSearch.cpp</name>
    <message>
        <source>Поиск: Команда (Ctrl + Q)</source>
        <translation>Search: Command (Ctrl + Q)</translation>
    </message>
</context>
<context>
    <name>RibbonCaptionButton.cpp</name>
    <message>
        <source>Свернуть</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Восстановить</source>
        <translation>Restore Down</translation>
    </message>
    <message>
        <source>Развернуть</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Закрыть</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>RibbonTreeItemsEditor.cpp</name>
    <message>
        <source>Вид кнопки</source>
        <translation>Button look</translation>
    </message>
    <message>
        <source>Только иконка</source>
        <translation>Icon only</translation>
    </message>
    <message>
        <source>Только текст</source>
        <translation>Text only</translation>
    </message>
    <message>
        <source>Текст возле иконки</source>
        <translation>Text beside icon</translation>
    </message>
    <message>
        <source>Текст под иконкой</source>
        <translation>Text under icon</translation>
    </message>
    <message>
        <source>Центровка</source>
        <translation>Centering</translation>
    </message>
    <message>
        <source>Тип кнопки</source>
        <translation>Button type</translation>
    </message>
    <message>
        <source>Запоминать активную</source>
        <translation>Remember the active one</translation>
    </message>
    <message>
        <source>Не запоминать</source>
        <translation>Do not remember</translation>
    </message>
    <message>
        <source>Делать активной первую</source>
        <translation>Make the first one active</translation>
    </message>
</context>
<context>
    <name>menuTreeModel.cpp</name>
    <message>
        <source>&lt; Р А З Д Е Л И Т Е Л Ь &gt;</source>
        <translation>&lt; S E P A R A T O R &gt;</translation>
    </message>
</context>
<context>
    <name>ribbonQuickPanelTreeModel.cpp</name>
    <message>
        <source>Новая Групповая команда</source>
        <translation>New group command</translation>
    </message>
    <message>
        <source>Панель</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>&lt; Р А З Д Е Л И Т Е Л Ь &gt;</source>
        <translation>&lt; S E P A R A T O R &gt;</translation>
    </message>
</context>
<context>
    <name>ribbonTreeModel.cpp</name>
    <message>
        <source>&lt; Без названия &gt;</source>
        <translation>&lt; Untitled &gt;</translation>
    </message>
    <message>
        <source>Новая Групповая команда</source>
        <translation>New Group command</translation>
    </message>
    <message>
        <source>Панели</source>
        <translation>Panels</translation>
    </message>
    <message>
        <source>Новая Панель</source>
        <translation>New Panel</translation>
    </message>
    <message>
        <source>Новая Группа</source>
        <translation>New Group</translation>
    </message>
    <message>
        <source>&lt; Динамическая группа &gt;</source>
        <translation>&lt; Dynamic group &gt;</translation>
    </message>
    <message>
        <source>&lt; Р А З Д Е Л И Т Е Л Ь &gt;</source>
        <translation>&lt; S E P A R A T O R &gt;</translation>
    </message>
</context>
<context>
    <name>ribbonTreeQuickPanelWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Добавить команду</source>
        <translation>Add command</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Создать групповую команду</source>
        <translation>Create group command</translation>
    </message>
    <message>
        <source>Добавить разделитель</source>
        <translation>Add separator</translation>
    </message>
    <message>
        <source>Переместить выше</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Переместить ниже</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Параметры</source>
        <translation>Parameters</translation>
    </message>
</context>
<context>
    <name>ribbonTreeWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Добавить вкладку</source>
        <translation>Add tab</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Добавить группу</source>
        <translation>Add group</translation>
    </message>
    <message>
        <source>Добавить команду</source>
        <translation>Add command</translation>
    </message>
    <message>
        <source>Создать групповую команду</source>
        <translation>Create group command</translation>
    </message>
    <message>
        <source>Добавить разделитель</source>
        <translation>Add separator</translation>
    </message>
    <message>
        <source>Переместить выше</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Переместить ниже</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Параметры</source>
        <translation>Parameters</translation>
    </message>
</context>
</TS>
