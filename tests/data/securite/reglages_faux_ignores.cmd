check reglages_faux.rou --distance 3.5
