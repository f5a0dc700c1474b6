#include "base/KeyedCollection.h"

#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <QMap>

#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace {

QStringList itemsOf(const KeyedCollection<QString>& collection)
{
    QStringList list;
    for (const QString& item : collection) {
        list << item;
    }
    return list;
}

KeyedCollection<QString> letters()
{
    KeyedCollection<QString> collection;
    collection.Add(u"a"_s, u"ka"_s);
    collection.Add(u"b"_s);
    collection.Add(u"c"_s, u"ID3"_s);
    collection.Add(u"d"_s, u"kd"_s);
    return collection;
}

} // namespace

TEST(KeyedCollection, ItemsStandInTheOrderOfAddingFromOneOn)
{
    KeyedCollection<QString> collection = letters();
    EXPECT_EQ(collection.Count(), 4);
    EXPECT_FALSE(collection.isEmpty());
    EXPECT_EQ(collection.Item(1), u"a"_s);
    EXPECT_EQ(collection.Item(4), u"d"_s);
    EXPECT_EQ(itemsOf(collection), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    collection.Item(2) = u"B"_s;
    collection.Item(u"kd"_s) = u"D"_s;
    EXPECT_EQ(itemsOf(collection), (QStringList{u"a"_s, u"B"_s, u"c"_s, u"D"_s}));
}

TEST(KeyedCollection, APositionThatIsNotThereIsOutOfRange)
{
    KeyedCollection<QString> collection = letters();
    for (const int index : {0, -1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(errorOf([&] { collection.Item(index); }), 9) << index;
        EXPECT_EQ(errorOf([&] { std::as_const(collection).Item(index); }), 9) << index;
        EXPECT_EQ(errorOf([&] { collection.Remove(index); }), 9) << index;
    }
    EXPECT_EQ(errorOf([&] { KeyedCollection<int>().Item(1); }), 9);
}

TEST(KeyedCollection, AKeyThatIsNotThereIsAnInvalidArgument)
{
    KeyedCollection<QString> collection = letters();
    for (const QString& key : {u"x"_s, u""_s, u"ID4"_s, u"b"_s}) {
        EXPECT_EQ(errorOf([&] { collection.Item(key); }), 5);
        EXPECT_EQ(errorOf([&] { collection.Remove(key); }), 5);
        EXPECT_FALSE(collection.hasKey(key));
        EXPECT_EQ(collection.indexOf(key), 0);
    }
    EXPECT_FALSE(KeyedCollection<int>().hasKey(u"a"_s));
}

TEST(KeyedCollection, AKeyAddedTwiceIsAnErrorAndChangesNothing)
{
    KeyedCollection<QString> collection = letters();
    for (const QString& key : {u"ka"_s, u"KA"_s, u"id3"_s}) {
        EXPECT_EQ(errorOf([&] { collection.Add(u"new"_s, key); }), 457);
    }
    EXPECT_EQ(itemsOf(collection), itemsOf(letters()));
    collection.Add(u"e"_s, u"ke"_s);
    EXPECT_EQ(collection.indexOf(u"ke"_s), 5);
}

TEST(KeyedCollection, KeysAreComparedWithoutRegardToCase)
{
    struct Case
    {
        QString key;
        QString other;
    };
    const Case same[] = {{u"header"_s, u"HEADER"_s},
                         {u"ID12"_s, u"id12"_s},
                         {u"ID12"_s, u"Id12"_s},
                         {u"ID012"_s, u"iD012"_s},
                         {u"ID0"_s, u"id0"_s},
                         {u"IDcopyright"_s, u"idCOPYRIGHT"_s},
                         {u"\u00C4pfel"_s, u"\u00E4PFEL"_s},
                         {u"\u0414\u041E\u041C"_s, u"\u0434\u043E\u043C"_s},
                         {u"\u212A"_s, u"k"_s},
                         {u"\u03C3"_s, u"\u03C2"_s},
                         {u"\U00010400"_s, u"\U00010428"_s},
                         {u""_s, QString()}};
    for (const Case& one : same) {
        for (const int others : {0, 50}) { // few keys and many are looked for in different ways
            KeyedCollection<int> collection;
            for (int i = 0; i < others; ++i) {
                collection.Add(i, u"other"_s + QString::number(i));
            }
            collection.Add(-1, one.key);
            ASSERT_TRUE(collection.hasKey(one.other)) << one.key.toStdString();
            EXPECT_EQ(collection.Item(one.other), -1);
            EXPECT_EQ(one.key.compare(one.other, Qt::CaseInsensitive), 0);
        }
    }
}

TEST(KeyedCollection, KeysThatLookAlikeAreDifferentKeys)
{
    const QString keys[] = {u"ID1"_s,
                            u"ID01"_s,
                            u"ID001"_s,
                            u"ID+1"_s,
                            u"ID-1"_s,
                            u"ID 1"_s,
                            u"ID1 "_s,
                            u"1"_s,
                            u"ID"_s,
                            u"I1"_s,
                            u"ID10"_s,
                            u"ID1a"_s,
                            u"ID\u0661"_s,
                            u"ID9223372036854775807"_s,
                            u"ID9223372036854775808"_s,
                            u"ID18446744073709551617"_s,
                            u"ID92233720368547758070"_s,
                            u"ID0"_s,
                            u"ID00"_s,
                            u""_s,
                            u"\u0131D1"_s,
                            u"stra\u00DFe"_s,
                            u"strasse"_s};
    KeyedCollection<QString> collection;
    for (const QString& key : keys) {
        EXPECT_EQ(errorOf([&] { collection.Add(key, key); }), 0) << key.toStdString();
    }
    for (const QString& key : keys) {
        EXPECT_EQ(collection.Item(key), key);
    }
}

TEST(KeyedCollection, AnyLetterMeetsItsOtherCaseAsQStringComparesThem)
{
    KeyedCollection<QString> collection;
    for (int unit = 1; unit < 0xD800; ++unit) {
        const QString key{QChar(static_cast<char16_t>(unit))};
        const QString found = collection.hasKey(key) ? collection.Item(key) : QString();
        if (found.isNull()) {
            collection.Add(key, key);
        } else {
            ASSERT_EQ(key.compare(found, Qt::CaseInsensitive), 0) << unit;
        }
        for (const QString& other : {key.toUpper(), key.toLower()}) {
            if (other.compare(key, Qt::CaseInsensitive) == 0) {
                ASSERT_TRUE(collection.hasKey(other)) << unit;
            }
        }
    }
}

TEST(KeyedCollection, RemovingMovesTheItemsBehindUp)
{
    KeyedCollection<QString> collection = letters();
    collection.Remove(2);
    EXPECT_EQ(itemsOf(collection), (QStringList{u"a"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(collection.indexOf(u"ID3"_s), 2);
    EXPECT_EQ(collection.indexOf(u"kd"_s), 3);
    collection.Remove(u"KA"_s);
    EXPECT_EQ(itemsOf(collection), (QStringList{u"c"_s, u"d"_s}));
    EXPECT_FALSE(collection.hasKey(u"ka"_s));
    EXPECT_EQ(collection.Item(u"kd"_s), u"d"_s);
    collection.Add(u"again"_s, u"ka"_s);
    EXPECT_EQ(collection.indexOf(u"ka"_s), 3);
}

TEST(KeyedCollection, ClearForgetsItemsAndKeys)
{
    KeyedCollection<QString> collection = letters();
    collection.Clear();
    EXPECT_TRUE(collection.isEmpty());
    EXPECT_FALSE(collection.hasKey(u"ka"_s));
    collection.Add(u"new"_s, u"ka"_s);
    EXPECT_EQ(collection.indexOf(u"ka"_s), 1);
}

TEST(KeyedCollection, ACopyIsIndependentOfItsSource)
{
    KeyedCollection<QString> source = letters();
    KeyedCollection<QString> copy(source);
    copy.Remove(u"ka"_s);
    copy.Add(u"e"_s, u"ke"_s);
    EXPECT_EQ(itemsOf(source), itemsOf(letters()));
    EXPECT_TRUE(source.hasKey(u"ka"_s));
    EXPECT_FALSE(source.hasKey(u"ke"_s));
    source = copy;
    EXPECT_EQ(source.Item(u"ke"_s), u"e"_s);
    const KeyedCollection<QString>& itself = source;
    source = itself;
    EXPECT_EQ(source.Count(), 4);
    EXPECT_EQ(source.indexOf(u"ke"_s), 4);
}

TEST(KeyedCollection, ACopyHasTheKeysAndChangesByItself)
{
    KeyedCollection<QString> source;
    for (const QString& text : {u"a"_s, u"b"_s, u"c"_s}) {
        source.Add(text, u"k"_s + text);
    }
    KeyedCollection<QString> copy = source;
    copy.Item(u"kb"_s) = u"B"_s;
    copy.Remove(u"ka"_s);
    copy.Add(u"d"_s, u"kd"_s);
    EXPECT_EQ(source.Count(), 3);
    EXPECT_EQ(source.Item(u"ka"_s), u"a"_s);
    EXPECT_EQ(source.Item(u"kb"_s), u"b"_s);
    EXPECT_FALSE(source.hasKey(u"kd"_s));
    EXPECT_EQ(copy.Item(1), u"B"_s);
    EXPECT_EQ(copy.indexOf(u"kd"_s), 3);
    source.Add(u"e"_s, u"ke"_s);
    EXPECT_FALSE(copy.hasKey(u"ke"_s));
}

TEST(KeyedCollection, AMovedCollectionKeepsItsKeys)
{
    KeyedCollection<QString> source = letters();
    KeyedCollection<QString> moved(std::move(source));
    EXPECT_EQ(moved.Item(u"kd"_s), u"d"_s);
    KeyedCollection<QString> assigned;
    assigned.Add(u"old"_s, u"old"_s);
    assigned = std::move(moved);
    EXPECT_FALSE(assigned.hasKey(u"old"_s));
    EXPECT_EQ(assigned.Item(u"id3"_s), u"c"_s);
}

TEST(KeyedCollection, SharedItemsStaySharedInACopy)
{
    KeyedCollection<std::shared_ptr<int>> source;
    source.Add(std::make_shared<int>(1), u"ID1"_s);
    const KeyedCollection<std::shared_ptr<int>> copy = source;
    *source.Item(u"ID1"_s) = 7;
    EXPECT_EQ(*copy.Item(1), 7);
}

TEST(KeyedCollection, BehavesAsAListAndAMapOfFoldedKeysWould)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same steps every time
    KeyedCollection<int> collection;
    QList<std::pair<QString, int>> list; // a null key is none
    for (int step = 0; step < 20000; ++step) {
        const int number = static_cast<int>(random() % 300);
        const bool isText = random() % 3 == 0;
        const QString key = (isText ? u"Name"_s : u"ID"_s) + QString::number(number);
        int at = -1;
        for (int i = 0; i < list.size(); ++i) {
            at = list[i].first.compare(key, Qt::CaseInsensitive) == 0 ? i : at;
        }
        const QString asked = random() % 2 == 0 ? key : key.toLower();
        ASSERT_EQ(collection.indexOf(asked), at + 1);
        if (random() % 3 == 0 && !list.isEmpty()) {
            const int victim = static_cast<int>(random() % static_cast<unsigned int>(list.size()));
            list.removeAt(victim);
            collection.Remove(victim + 1);
        } else if (random() % 10 == 0) {
            list.append({QString(), step});
            collection.Add(step);
        } else if (at >= 0) {
            ASSERT_EQ(errorOf([&] { collection.Add(step, asked); }), 457);
            ASSERT_EQ(collection.Item(asked), list[at].second);
        } else {
            list.append({key, step});
            collection.Add(step, asked);
        }
        ASSERT_EQ(collection.Count(), list.size());
    }
    for (int i = 0; i < list.size(); ++i) {
        EXPECT_EQ(collection.Item(i + 1), list[i].second);
    }
}

TEST(KeyedCollection, RemovingManyLeavesWhatRemovingOneAfterTheOtherWould)
{
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same steps every time
    for (int round = 0; round < 300; ++round) {
        KeyedCollection<int> together;
        const int count = static_cast<int>(random() % 40);
        for (int i = 0; i < count; ++i) {
            if (random() % 5 == 0) {
                together.Add(i);
            } else {
                together.Add(i, (random() % 3 == 0 ? u"Name"_s : u"ID"_s) + QString::number(i));
            }
        }
        KeyedCollection<int> single = together;
        std::vector<QString> keys;
        for (int i = 0; i < count; ++i) {
            if (random() % 2 == 0) {
                keys.push_back((random() % 2 == 0 ? u"name"_s : u"id"_s) + QString::number(random() % 40));
            }
        }
        const int error = errorOf([&] { together.removeAll(keys); });
        EXPECT_EQ(error, errorOf([&] {
                      for (const QString& key : keys) {
                          single.Remove(key);
                      }
                  }));
        EXPECT_EQ(std::vector<int>(together.begin(), together.end()), std::vector<int>(single.begin(), single.end()));
        for (int i = 0; i < 40; ++i) {
            for (const QString& key : {u"ID"_s + QString::number(i), u"NAME"_s + QString::number(i)}) {
                ASSERT_EQ(together.indexOf(key), single.indexOf(key)) << key.toStdString();
            }
        }
    }
}

TEST(KeyedCollection, AnEmptyCollectionIsSmall)
{
    EXPECT_LE(sizeof(KeyedCollection<QString>), sizeof(std::vector<QString>) + sizeof(void*));
}

TEST(KeyedCollection, AHundredThousandKeysAreNoMatterOfSeconds)
{
    // Generous, so that it holds on a busy machine with sanitizers; a search one by one would take minutes.
    constexpr int count = 100000;
    QElapsedTimer timer;
    timer.start();
    for (const QString& prefix : {u"ID"_s, u"Country "_s}) {
        KeyedCollection<int> collection;
        collection.reserve(count);
        for (int i = 0; i < count; ++i) {
            collection.Add(i, prefix + QString::number(i));
        }
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(collection.Item(prefix + QString::number(i)), i);
        }
    }
    EXPECT_LT(timer.elapsed(), 5000);
}
