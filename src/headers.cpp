// Compiles to nothing: the target that makes the precompiled header needs a source.
