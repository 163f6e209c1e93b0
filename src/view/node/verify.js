process.exit(0);
