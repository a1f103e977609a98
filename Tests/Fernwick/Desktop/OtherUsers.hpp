#pragma once

/// Until it goes, this process takes everybody on its local connections for another user: the
/// system tells it so. Only the superuser could have a process of another user for the same.
class OtherUsers {
public:
    OtherUsers();
    OtherUsers(const OtherUsers&) = delete;
    OtherUsers& operator=(const OtherUsers&) = delete;
    ~OtherUsers();
};
