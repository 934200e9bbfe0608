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
    <name>QuickSearch.cpp</name>
    <message>
        <source>Поиск: Команда (Ctrl + Q)</source>
        <translation>Search: Command (Ctrl + Q)</translation>
    </message>
</context>
<context>
    <name>menuTreeModel.cpp</name>
    <message>
        <source>&lt; Р А З Д Е Л И Т Е Л Ь &gt;</source>
        <translation>&lt; S E P A R A T O R &gt;</translation>
    </message>
</context>
</TS>
