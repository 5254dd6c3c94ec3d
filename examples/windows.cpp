#include <vorn/onvif/faults.h>
#include <vorn/onvif/profiles.h>

#include <QtCore/QAbstractTableModel>
#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

//! [model]
/// The profiles of a camera, a row for each.
class ProfileTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Codec, Picture, Columns };

    /// Shows \a profiles from now on.
    void setProfiles(const vorn::OnvifProfileVector &profiles)
    {
        // Lists are equal if their tokens are, in the same order: then the rows are the same, and selections can stay.
        if (m_profiles != profiles) {
            beginResetModel();
            m_profiles = profiles;
            endResetModel();
        } else if (!profiles.isEmpty()) {
            m_profiles = profiles; // what the rows show may be another all the same
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
        }
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_profiles.size());
    }

    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : Columns; }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        static const QStringList titles = {"Name", "Codec", "Picture"};
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? titles.value(section) : QVariant();
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return {};
        const vorn::OnvifProfile &profile = m_profiles.at(index.row());
        if (role == Qt::UserRole)
            return profile.token; // not the profile: that would be copied, and compared by its token
        if (role != Qt::DisplayRole)
            return {};
        switch (index.column()) {
        case Name:
            return profile.name;
        case Codec:
            return profile.videoEncoder.encoding;
        case Picture: {
            const QSize size = profile.videoEncoder.resolution; // invalid if the profile has no encoder
            return size.isValid() ? QString("%1 x %2").arg(size.width()).arg(size.height()) : QString();
        }
        default:
            return {};
        }
    }

private:
    vorn::OnvifProfileVector m_profiles;
};

//! [model]

//! [camera]
/// What a window shows of a camera.
class Camera : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString complaint READ complaint NOTIFY complaintChanged)

public:
    ProfileTable &profiles() { return m_profiles; }

    /// Why the last answer was none; empty if it was one.
    QString complaint() const { return m_complaint; }

    /// Takes the answer to GetProfiles. Network code on another thread may be connected to it: it sends the bytes.
    void takeProfiles(const QByteArray &bytes)
    {
        const vorn::OnvifFault fault(bytes, "GetProfiles", 0);
        const vorn::OnvifProfileVector profiles(bytes, "/Envelope/Body/GetProfilesResponse");
        if (fault.hasError()) {
            setComplaint(fault.toString());
        } else if (profiles.response.view("").isNull()) {
            setComplaint("The camera gave no answer that can be read.");
        } else {
            setComplaint({});
            m_profiles.setProfiles(profiles); // else the rows stay
        }
    }

Q_SIGNALS:
    void complaintChanged();

private:
    void setComplaint(const QString &complaint)
    {
        if (m_complaint == complaint) // a text, so that equal means the same
            return;
        m_complaint = complaint;
        Q_EMIT complaintChanged();
    }

    ProfileTable m_profiles;
    QString m_complaint;
};

//! [camera]

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QByteArray bytes = reply.readAll();
    QTextStream out(stdout);

    // In the place of a window.
    Camera camera;
    const ProfileTable &table = camera.profiles();
    const auto print = [&out, &table](const char *occasion) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells << table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        out << occasion << '\n' << "  " << cells.join(" | ") << '\n';
        for (int row = 0; row < table.rowCount(); ++row) {
            cells.clear();
            for (int column = 0; column < table.columnCount(); ++column)
                cells << table.index(row, column).data().toString();
            out << "  " << cells.join(" | ") << '\n';
        }
    };
    QObject::connect(&table, &ProfileTable::modelReset, &camera, [&] { print("other rows"); });
    QObject::connect(&table, &ProfileTable::dataChanged, &camera, [&] { print("the same rows"); });
    QObject::connect(&camera, &Camera::complaintChanged, &camera, [&] { out << camera.complaint() << '\n'; });

    camera.takeProfiles(bytes);
    camera.takeProfiles(bytes.replace("main_stream", "entrance")); // as after a change on the camera's side
    return 0;
}

#include "windows.moc"
