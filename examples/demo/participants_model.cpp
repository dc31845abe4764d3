#include "participants_model.h"

#include <orv_column_filter_proxy_model.h>

namespace {

// A cheap, well mixed hash, so that neighbouring rows look unrelated.
quint32 mix(quint32 value)
{
    value ^= value >> 16;
    value *= 0x7feb352dU;
    value ^= value >> 15;
    value *= 0x846ca68bU;
    value ^= value >> 16;
    return value;
}

const char* const kCallSigns[] = {"Alpha", "Bravo", "Charlie", "Delta", "Echo", "Foxtrot", "Golf", "Hotel",
                                  "India", "Juliett", "Kilo", "Lima", "Mike", "November", "Oscar", "Papa",
                                  "Quebec", "Romeo", "Sierra", "Tango", "Uniform", "Victor", "Whiskey", "Yankee"};
const char* const kUnits[] = {"Inf Bn", "Armd Bn", "Arty Regt", "Engr Coy", "Recce Sqn", "Sig Coy", "Log Bn"};
const char* const kRoles[] = {"CMD", "MAN", "FIRE", "ENG", "REC", "SIG", "LOG"};
const char* const kRoleNames[] = {QT_TRANSLATE_NOOP("ParticipantsModel", "Command"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Manoeuvre"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Fires"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Engineering"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Reconnaissance"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Signals"),
                                  QT_TRANSLATE_NOOP("ParticipantsModel", "Logistics")};

} // namespace

ParticipantsModel::ParticipantsModel(int rows, QObject* parent)
    : QAbstractTableModel(parent)
    , m_rows(qMax(0, rows))
{
}

QStringList ParticipantsModel::roleCodes()
{
    QStringList codes;
    for (const char* code : kRoles)
        codes << QLatin1String(code);
    return codes;
}

QString ParticipantsModel::roleName(const QString& code)
{
    for (size_t i = 0; i < std::size(kRoles); ++i) {
        if (code == QLatin1String(kRoles[i]))
            return tr(kRoleNames[i]);
    }
    return code;
}

void ParticipantsModel::retranslate()
{
    // The role names and the headers are shown translated.
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, RoleColumn), index(m_rows - 1, RoleColumn), {Qt::DisplayRole});
}

int ParticipantsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int ParticipantsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ParticipantsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows)
        return QVariant();
    const int row = index.row();
    const quint32 h = mix(quint32(row) + 1U);
    const int roleIndex = int(h % std::size(kRoles));
    if (role == OrvWidgets::OrvColumnFilterProxyModel::DataFilterRole && index.column() == RoleColumn)
        return QString::fromLatin1(kRoles[roleIndex]);
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (index.column()) {
    case NumberColumn:
        return row + 1;
    case CallSignColumn:
        return QStringLiteral("%1 %2").arg(QLatin1String(kCallSigns[(h >> 8) % std::size(kCallSigns)])).arg((h >> 16) % 100);
    case UnitColumn:
        return QStringLiteral("%1 %2").arg((h >> 4) % 40 + 1).arg(QLatin1String(kUnits[(h >> 12) % std::size(kUnits)]));
    case StrengthColumn:
        return QString::number(10 + (h >> 20) % 990);
    case RoleColumn:
        return tr(kRoleNames[roleIndex]);
    }
    return QVariant();
}

QVariant ParticipantsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NumberColumn:
        return tr("No.");
    case CallSignColumn:
        return tr("Call sign");
    case UnitColumn:
        return tr("Unit");
    case StrengthColumn:
        return tr("Strength");
    case RoleColumn:
        return tr("Role");
    }
    return QVariant();
}
