"""Drawing modules behind generate.py, one per kind of picture."""
