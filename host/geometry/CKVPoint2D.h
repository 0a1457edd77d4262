#pragma once

// A point of a view's plane in device-independent pixels, the origin at the view's top left.
// The host's 2-D geometry has always lived outside any namespace under this name.
struct CKVPoint2D
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const CKVPoint2D& a, const CKVPoint2D& b) { return a.x == b.x && a.y == b.y; }
    friend bool operator!=(const CKVPoint2D& a, const CKVPoint2D& b) { return !(a == b); }
};
