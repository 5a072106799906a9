# Empty dependencies file for qelcore.
# This may be replaced when dependencies are built.
