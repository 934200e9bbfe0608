#pragma once

// Helpers shared by the serializer tests: the expected streams are written
// here with QDataStream, independently of the serializer.

#include <tessaro/Tessaro.h>

#include "common/streams.h"
#include "common/testicons.h"

#include <QAction>
#include <QDataStream>
#include <QHash>
#include <QIcon>
#include <QPixmap>

namespace testutil {

using testcommon::colorIcon;
using testcommon::iconColor;

// One action record of the stream, as the test expects it.
struct Record
{
    bool separator = false;
    QString id;
    QString text;
    bool withText = true;
    QList<Record> subs;

    static Record sep()
    {
        Record r;
        r.separator = true;
        return r;
    }
    static Record plain(const QString& text, const QList<Record>& subs = {})
    {
        Record r;
        r.text = text;
        r.subs = subs;
        return r;
    }
    static Record ided(const QString& id, const QString& text, const QList<Record>& subs = {})
    {
        Record r;
        r.id = id;
        r.text = text;
        r.subs = subs;
        return r;
    }
    static Record widget(const QString& id)
    {
        Record r;
        r.id = id;
        r.withText = false;
        return r;
    }
};

inline void writeRecord(QDataStream& stream, const Record& record)
{
    stream << record.separator;
    if (record.separator)
        return;
    stream << record.id;
    if (record.withText)
        stream << record.text;
    stream << qint32(record.subs.size());
    for (const Record& sub : record.subs)
        writeRecord(stream, sub);
}

// A layout stream under construction, with the serializer's default stream settings.
struct Writer : testcommon::StreamWriter
{
    Writer& entry(qint32 style, qint8 type, const Record& record)
    {
        stream << style << type;
        writeRecord(stream, record);
        return *this;
    }
};

// Maps host actions to "cmd.<objectName>" identifiers and back.
class IdSerializer : public ui::RibbonSerializer
{
public:
    explicit IdSerializer(ui::RibbonBar* ribbon) : ui::RibbonSerializer(ribbon) {}

    void addHostAction(QAction* action) { m_actions.insert(QStringLiteral("cmd.") + action->objectName(), action); }
    void forget(const QString& id) { m_actions.remove(id); }
    mutable int lookups = 0;

protected:
    QString getActionID(QAction* action) override
    {
        for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it) {
            if (it.value() == action)
                return it.key();
        }
        return QString();
    }

    QAction* getAction(const QString& id) const override
    {
        ++lookups;
        return m_actions.value(id);
    }

private:
    QHash<QString, QAction*> m_actions;
};

} // namespace testutil
