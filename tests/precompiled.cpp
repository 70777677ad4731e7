// The unit whose precompiled header all native test programs share.
