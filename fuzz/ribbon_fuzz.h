#pragma once

// Shared by the ribbon fuzz targets: a host with a few actions that stored
// identifiers map to (plain, with a menu, a widget action, a popup widget
// action), so that identifier records reach every branch of the reader.

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonSerializer.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QHash>
#include <QMenu>
#include <QWidgetAction>

#include <cstdint>
#include <cstring>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace ribbonfuzz {

inline void quiet(QtMsgType, const QMessageLogContext&, const QString&) {}

inline void initialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv);
    // Damaged arrays make qUncompress warn on every input.
    qInstallMessageHandler(quiet);
}

class Host : public ui::RibbonSerializer
{
public:
    explicit Host(ui::RibbonBar* ribbon) : ui::RibbonSerializer(ribbon)
    {
        for (int i = 0; i < 4; ++i)
            add(QStringLiteral("cmd.%1").arg(i), new QAction(QStringLiteral("Команда %1").arg(i), &m_owner));
        QAction* withMenu = add(QStringLiteral("cmd.menu"), new QAction(QStringLiteral("Меню"), &m_owner));
        auto* menu = new QMenu;
        QObject::connect(&m_owner, &QObject::destroyed, menu, [menu] { delete menu; });
        menu->addAction(m_actions.value(QStringLiteral("cmd.0")));
        menu->addAction(m_actions.value(QStringLiteral("cmd.1")));
        withMenu->setMenu(menu);
        QAction* dynamic = add(QStringLiteral("cmd.dynamic"), new QAction(QStringLiteral("Недавние"), &m_owner));
        dynamic->setProperty("isDynamic", true);
        auto* widget = new QWidgetAction(&m_owner);
        widget->setDefaultWidget(new QComboBox);
        add(QStringLiteral("cmd.widget"), widget);
        QAction* popup = add(QStringLiteral("cmd.popup"), new QAction(QStringLiteral("Палитра"), &m_owner));
        popup->setProperty("isPopupWidgetAction", true);
    }

protected:
    QString getActionID(QAction* action) override { return m_actions.key(action); }
    QAction* getAction(const QString& id) const override { return m_actions.value(id); }

private:
    QAction* add(const QString& id, QAction* action)
    {
        m_actions.insert(id, action);
        return action;
    }

    QObject m_owner;
    QHash<QString, QAction*> m_actions;
};

enum class Entry { Layout, LayoutDevice, QuickBar, QuickBarDevice };

// One input through one entry point, on a fresh ribbon, then a save of what
// was restored (restored menus may share actions) and the posted layout work.
inline int run(Entry entry, const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    {
        ui::RibbonBar ribbon(QStringLiteral("fuzz"));
        Host host(&ribbon);
        switch (entry) {
        case Entry::Layout:
            host.restore(bytes);
            break;
        case Entry::QuickBar:
            host.restoreQuickBar(bytes);
            break;
        case Entry::LayoutDevice:
        case Entry::QuickBarDevice: {
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::ReadOnly);
            if (entry == Entry::LayoutDevice)
                host.restore(buffer);
            else
                host.restoreQuickBar(buffer);
            break;
        }
        }
        host.save();
        host.saveQuickBar();
        QCoreApplication::sendPostedEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}

// For the array targets: most mutations go to the uncompressed stream, which
// is compressed again, so that the reader behind qUncompress gets exercised;
// the rest go to the compressed bytes themselves (size claims, damaged zlib data).
inline size_t mutateCompressed(uint8_t* data, size_t size, size_t maxSize, unsigned int seed)
{
    QByteArray raw;
    if (size >= 4 && seed % 4 != 0) {
        const quint32 claim = (quint32(data[0]) << 24) | (quint32(data[1]) << 16) | (quint32(data[2]) << 8) | data[3];
        if (claim <= 1024 * 1024)
            raw = qUncompress(data, int(size));
    }
    if (raw.isEmpty())
        return LLVMFuzzerMutate(data, size, maxSize);
    const int room = int(maxSize) * 4 + 64;
    const int used = raw.size();
    raw.resize(qMax(used, room));
    raw.resize(int(LLVMFuzzerMutate(reinterpret_cast<uint8_t*>(raw.data()), size_t(used), size_t(raw.size()))));
    const QByteArray packed = qCompress(raw);
    if (size_t(packed.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    memcpy(data, packed.constData(), size_t(packed.size()));
    return size_t(packed.size());
}

} // namespace ribbonfuzz
