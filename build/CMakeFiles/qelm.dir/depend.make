# Empty dependencies file for qelm.
# This may be replaced when dependencies are built.
