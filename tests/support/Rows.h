#pragma once

#include <QtTest>

#include <tuple>

/// The rows of a data test, whose columns go by their order:
///     using Sum = Rows<int, int>; // before the slots: moc knows no such thing among them
///     void SumsAreRight_data() { Sum()("two and two", 4, 2 + 2)("none", 0, 0); }
///     void SumsAreRight() { const auto [expected, got] = Sum::now(); ... }
template <typename... Types>
class Rows {
    using Row = std::tuple<Types...>;

public:
    Rows() { QTest::addColumn<Row>("row"); }
    const Rows& operator()(const char* name, const Types&... values) const {
        QTest::newRow(name) << Row(values...);
        return *this;
    }
    /// The row that runs now.
    static Row now() { return *static_cast<Row*>(QTest::qData("row", qMetaTypeId<Row>())); }
};
