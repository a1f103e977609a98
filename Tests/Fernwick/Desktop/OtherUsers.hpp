#pragma once

/// While this object exists, SO_PEERCRED reports another user for every connection of this process.
/// Only root could start a real process of another user.
class OtherUsers {
public:
    OtherUsers();
    OtherUsers(const OtherUsers&) = delete;
    OtherUsers& operator=(const OtherUsers&) = delete;
    ~OtherUsers();
};
