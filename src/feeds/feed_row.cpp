#include "feeds/feed_row.h"

#include "feeds/feed_columns.h"

namespace tav {
namespace {

// One statement of the reader: a failure in it is passed over.
template <class Statement>
void Try(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError&) {
    }
}

void Take(const FieldValue& value, std::string& field) { field = ToText(value); }
void Take(const FieldValue& value, bool& field) { field = ToBoolean(value); }
void Take(const FieldValue& value, Single& field) { field = ToSingle(value); }

FieldValue Stored(const std::string& field) { return field; }
FieldValue Stored(bool field) { return field; }
FieldValue Stored(Single field) { return StoredNumber(field); }

void ReadColumn(const Recordset& row, const FeedColumn& column, FeedRecord& feed) {
    Try([&] {
        const FieldValue value = row.Value(column.Name);
        std::visit([&](auto member) { Take(value, feed.*member); }, column.Field);
    });
    if (!column.Has(kZeroMeansOne)) return;
    Single& number = feed.*std::get<Single FeedRecord::*>(column.Field);
    if (number == 0) number = 1;
}

void ReadColumns(const Recordset& row, FeedRecord& feed) {
    const bool calf = IsCalfCategory(feed.Category);
    for (const FeedColumn& column : FeedColumns()) {
        if (column.Group == ColumnGroup::Key || column.Has(kNotRead)) continue;
        if (column.BelongsTo(calf)) ReadColumn(row, column, feed);
    }
}

// What the row lacks of an ordinary feed. The fibre's digestibility has no guard here: where the
// division fails it stays 0.
void CompleteOrdinaryFeed(FeedRecord& feed) {
    if (feed.Category == kVitaminMineralCategory) feed.ForageDescription = "Concentrate";
    if (feed.NDFDigest != 0) return;
    Try([&] {
        const Number fibre = feed.NDF - feed.NDFIP;
        feed.NDFDigest =
            (1 - Power(feed.Lignin / fibre, 0.667)) * (fibre - feed.Lignin) * 0.75 / feed.NDF;
    });
}

void CompleteCalfFeed(FeedRecord& feed) {
    if (feed.Category == kCalfMilkCategory) {
        Try([&] { feed.cDCP = feed.cCP * 0.93; });
    } else {
        feed.cCP = feed.cCP * 0.75;
    }
}

}  // namespace

void ReadFeedRow(const Recordset& row, FeedRecord& feed) {
    for (const FeedColumn& column : FeedColumns()) {
        if (column.Group == ColumnGroup::Key) ReadColumn(row, column, feed);
    }
    Try([&] {
        if (IsNull(row.Value(kIfnColumn))) feed.IFN = kNoIfn;
    });
    ReadColumns(row, feed);
    if (IsCalfCategory(feed.Category)) {
        CompleteCalfFeed(feed);
    } else {
        CompleteOrdinaryFeed(feed);
    }
}

void StoreFeedRow(Recordset& row, FeedRecord& feed) {
    feed.ReadOnly = false;
    const bool calf = IsCalfCategory(feed.Category);
    for (const FeedColumn& column : FeedColumns()) {
        if (!column.BelongsTo(calf)) continue;
        std::visit([&](auto member) { row.SetValue(column.Name, Stored(feed.*member)); },
                   column.WrittenFrom);
    }
    row.Update();
}

}  // namespace tav
