#include "platform/system/registry.h"
#include "support/test_class.h"

#include <QMap>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A registry made of data, for as long as it lives.
class DataRegistry {
public:
    DataRegistry()
    {
        SetRegistry([this](std::uint32_t root, const QString& key, const QString& name) {
            roots.append(root);
            const auto found = keys.constFind(key);
            return found != keys.constEnd() && found->contains(name) ? std::optional(found->value(name))
                                                                     : std::nullopt;
        });
    }
    ~DataRegistry() { SetRegistry({}); }
    DataRegistry(const DataRegistry&) = delete;
    DataRegistry& operator=(const DataRegistry&) = delete;

    QMap<QString, QMap<QString, RegistryValue>> keys;
    QList<std::uint32_t> roots;
};

const QString folder = u"SOFTWARE\\Torvik"_s;
const QString name = u"PATH"_s;

} // namespace

/// Reading a value of the registry.
class RegistryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_text_with_and_without_its_closing_zero_reads_the_same()
    {
        DataRegistry data;
        for (const QByteArray& stored :
             {QByteArray("C:\\Tools\\info.exe"), QByteArray("C:\\Tools\\info.exe\0", 18)}) {
            data.keys[folder][name] = {registry::text, stored};
            QString result = u"before"_s;
            QVERIFY(ReadRegistryValue(registry::localMachine, folder, name, result));
            QCOMPARE(result, u"C:\\Tools\\info.exe"_s);
        }
    }

    void the_value_is_asked_for_under_its_root()
    {
        DataRegistry data;
        data.keys[folder][name] = {registry::text, "x"};
        QString result;
        QVERIFY(ReadRegistryValue(registry::localMachine, folder, name, result));
        QVERIFY(!ReadRegistryValue(registry::localMachine, folder, u"none"_s, result));
        QCOMPARE(data.roots, (QList<std::uint32_t>{0x80000002, 0x80000002}));
    }

    void a_missing_key_gives_an_empty_result_and_false()
    {
        DataRegistry data;
        data.keys[u"SOFTWARE\\Other"_s][name] = {registry::text, "x"};
        QString result = u"before"_s;
        QVERIFY(!ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, QString());
    }

    void a_missing_value_gives_an_empty_result_and_false()
    {
        DataRegistry data;
        data.keys[folder];
        QString result = u"before"_s;
        QVERIFY(!ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, QString());
    }

    void a_value_longer_than_the_buffer_cannot_be_read()
    {
        DataRegistry data;
        data.keys[folder][name] = {registry::text, QByteArray(1024, 'a')};
        QString result;
        QVERIFY(ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result.size(), 1024);
        data.keys[folder][name].data += 'a';
        QVERIFY(!ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, QString());
    }

    void numbers_read_from_their_last_byte_without_leading_zeros_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("5: a closing zero is taken off") << QByteArray("\x05\0\0\0", 4) << u"5"_s;
        QTest::newRow("0x12345678") << QByteArray("\x78\x56\x34\x12", 4) << u"305419896"_s;
        QTest::newRow("0x0105 reads as 0x15") << QByteArray("\x05\x01\0\0", 4) << u"21"_s;
        QTest::newRow("the high bit is no sign") << QByteArray("\xFE\xFF\xFF\xFF", 4) << u"4294967294"_s;
        QTest::newRow("0") << QByteArray(4, '\0') << u"0"_s;
    }

    void numbers_read_from_their_last_byte_without_leading_zeros()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        DataRegistry data;
        data.keys[folder][name] = {registry::number, bytes};
        QString result;
        QVERIFY(ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, text);
    }

    void a_value_of_another_type_leaves_the_result_as_it_was()
    {
        DataRegistry data;
        data.keys[folder][name] = {3, "abc"};
        QString result = u"before"_s;
        QVERIFY(ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, u"before"_s);
    }

    void a_system_without_a_registry_has_no_key()
    {
        QString result = u"before"_s;
        QVERIFY(!ReadRegistryValue(registry::localMachine, folder, name, result));
        QCOMPARE(result, QString());
    }
};

TORVIK_TEST(RegistryTest)
#include "registry_test.moc"
