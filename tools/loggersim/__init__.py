"""A stand-in for the data logger on a pseudo terminal, with a plant to measure behind it.

refrigerant  saturation tables of the data folder, and what a compressor makes of them
air          moist air on a coil
designs      the plants that can be played
plant        one of them over time
channels     a plant's state as the logger's channels
bath         all sensors in one bath, for a calibration
recording    a recorded measurement in the place of a plant
memory       the files in the logger's memory
faults       how the device misbehaves
device       the pseudo terminal and its commands
command      the command line
"""
