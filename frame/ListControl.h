#pragma once

#include <QString>

// A list on the screen as the library uses one: the log mirrors its lines into it, and
// nxSys::SetListBoxHScrollbar fits its horizontal scroll range to the widest row. The window
// implements it over its list widget; null means no list.
class ListControl {
public:
    virtual ~ListControl() = default;
    virtual void AddItem(const QString& text) = 0;
    virtual void RemoveItem(int index) = 0;
    virtual int ListCount() const = 0;
    // The index of the row added last.
    virtual int NewIndex() const = 0;
    virtual void ListIndex(int index) = 0; // selects a row
    virtual void Refresh() = 0;
    virtual QString List(int index) const = 0;
    // The width of a text in the list's font, and the horizontal range to scroll, in pixels.
    virtual int TextWidth(const QString& text) const = 0;
    virtual void SetHorizontalExtent(int pixels) = 0;
};
